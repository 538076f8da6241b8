#include "capture/utf8.h"
#include "platform/desktop/process.h"

#include <cstdio>
#include <cstdlib>

namespace plotvue {

void enterWorkingDirectory()
{
    // The menu entry starts a script that creates the folder.
}

void sayToTerminal(TextSpan sentence)
{
    std::fprintf(stderr, "PlotVue: %s\n", toUtf8(sentence).c_str());
}

void endProcess(int status)
{
    std::_Exit(status);
}

} // namespace plotvue
