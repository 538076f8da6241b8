#include "desktop/runtimefolder.h"

namespace plotvue {

// Windows has no such folder.
RuntimeFolder::RuntimeFolder() = default;
RuntimeFolder::~RuntimeFolder() = default;

} // namespace plotvue
