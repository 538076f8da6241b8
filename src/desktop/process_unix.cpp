#include "capture/utf8.h"
#include "desktop/process.h"

#include <cstdio>
#include <cstdlib>

namespace plotvue {

void enterWorkingDirectory()
{
    // The menu entry starts a script that creates the folder.
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
