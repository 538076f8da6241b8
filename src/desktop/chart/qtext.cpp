#include "desktop/chart/qtext.h"

namespace plotvue {

QString toQString(TextSpan text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

Text toText(const QString& text)
{
    return Text(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
}

} // namespace plotvue
