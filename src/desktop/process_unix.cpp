#include "capture/utf8.h"
#include "desktop/process.h"

#include <cstdio>
#include <cstdlib>

namespace plotvue {

void enterWorkingDirectory()
{
    // Nothing to do: the menu entry starts PlotVue by a script, which creates its private folder and removes
    // it.
}

void writeError(TextSpan line)
{
    std::fprintf(stderr, "%s\n", toUtf8(line).c_str());
}

void refuse(TextSpan sentence)
{
    writeError(sentence);
    endProcess(2);
}

void endProcess(int status)
{
    std::_Exit(status);
}

} // namespace plotvue
