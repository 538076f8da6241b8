#include "desktop/fontsahead.h"

namespace plotvue {

// Windows keeps its fonts loaded, so there is nothing to prepare.
FontsAhead::FontsAhead() = default;

void FontsAhead::list() {}

} // namespace plotvue
