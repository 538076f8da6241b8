#include "desktop/runtimefolder.h"

#include <cstdlib>
#include <unistd.h>

namespace plotvue {

RuntimeFolder::RuntimeFolder()
{
    const char *given = std::getenv("XDG_RUNTIME_DIR"), *temporary = std::getenv("TMPDIR");
    if (given && *given)
        return;
    std::string folder = std::string(temporary && *temporary ? temporary : "/tmp") + "/plotvue.XXXXXX";
    if (!mkdtemp(folder.data()))
        return;
    folder_ = folder;
    setenv("XDG_RUNTIME_DIR", folder_.c_str(), 1);
}

RuntimeFolder::~RuntimeFolder()
{
    if (!folder_.empty())
        rmdir(folder_.c_str());
}

} // namespace plotvue
