#include "support/owneronly.h"

#include <sys/stat.h>

namespace plotvue::test {

bool ownerOnly(const std::string& file)
{
    struct stat found {};
    return lstat(file.c_str(), &found) == 0 && found.st_mode == (S_IFREG | S_IRUSR | S_IWUSR);
}

} // namespace plotvue::test
