// Text as it can be drawn or spoken: one line without control characters.
#pragma once

#include "capture/text.h"

#include <functional>

namespace plotvue {

// `text` without control characters and without leading and trailing blanks, cut to 500 characters, which is
// more than fits in a line on any screen or page.
Text drawable(TextSpan text);
bool isBlank(TextSpan text); // whether it has only blanks and control characters

// `text` if its width is at most `room`, else the longest beginning that fits with an ellipsis. Empty if not
// even the ellipsis fits.
Text elided(Text text, double room, const std::function<double(TextSpan)>& widthOf);

} // namespace plotvue
