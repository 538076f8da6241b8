#include "desktop/printing.h"

#include <windows.h>
#include <winspool.h>

namespace plotvue {

void makeDefaultPrinter(const QString& name)
{
    std::wstring printer = name.toStdWString();
    SetDefaultPrinterW(printer.data());
}

} // namespace plotvue
