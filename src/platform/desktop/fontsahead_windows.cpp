#include "platform/desktop/fontsahead.h"

namespace plotvue {

// The system has its fonts at hand.
FontsAhead::FontsAhead() = default;

void FontsAhead::list() {}

} // namespace plotvue
