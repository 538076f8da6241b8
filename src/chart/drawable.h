// Text as it can be drawn or spoken: one line without control characters.
#pragma once

#include "capture/text.h"

#include <functional>

namespace plotvue::chart {

// `text` without its control characters and the blanks around it; at most its first 500 characters, which is
// more than a line on any screen or sheet holds.
Text drawable(TextSpan text);
bool isBlank(TextSpan text); // only blanks and control characters

// `text` when it is at most `room` wide, else as much of its beginning as fits together with an ellipsis;
// empty when not even the ellipsis fits.
Text elided(Text text, double room, const std::function<double(TextSpan)>& widthOf);

} // namespace plotvue::chart
