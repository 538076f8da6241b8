#include "desktop/printing.h"

#include <QLibrary>

#include <cups/cups.h>

namespace plotvue {

namespace {

// CUPS depends on some twenty other libraries. It is loaded on the first print so that it does not slow down
// every start.
template <typename Function>
Function* cupsFunction(const char* name)
{
    return reinterpret_cast<Function*>(QLibrary::resolve(QStringLiteral("cups"), 2, name));
}

} // namespace

void makeDefaultPrinter(const QString& name)
{
    const auto getDests = cupsFunction<decltype(cupsGetDests)>("cupsGetDests");
    const auto getDest = cupsFunction<decltype(cupsGetDest)>("cupsGetDest");
    const auto setDefaultDest = cupsFunction<decltype(cupsSetDefaultDest)>("cupsSetDefaultDest");
    const auto setDests = cupsFunction<decltype(cupsSetDests)>("cupsSetDests");
    const auto freeDests = cupsFunction<decltype(cupsFreeDests)>("cupsFreeDests");
    if (!getDests || !getDest || !setDefaultDest || !setDests || !freeDests)
        return;

    const QByteArray printer = name.section(u'/', 0, 0).toUtf8(),
                     instance = name.section(u'/', 1, 1).toUtf8();
    const char* ofInstance = instance.isEmpty() ? nullptr : instance.constData();
    cups_dest_t* printers = nullptr;
    const int count = getDests(&printers);
    if (getDest(printer.constData(), ofInstance, count, printers)) {
        setDefaultDest(printer.constData(), ofInstance, count, printers);
        setDests(count, printers);
    }
    freeDests(count, printers);
}

} // namespace plotvue
