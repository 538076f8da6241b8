#include "desktop/runtimefolder.h"

namespace plotvue {

// Nothing to do: on Windows the toolkit needs no private folder.
RuntimeFolder::RuntimeFolder() = default;
RuntimeFolder::~RuntimeFolder() = default;

} // namespace plotvue
