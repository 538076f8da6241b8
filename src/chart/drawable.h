// Text as it can be drawn or spoken: one line without control characters.
#pragma once

#include "capture/text.h"

#include <functional>

namespace plotvue::chart {

// `text` without its control characters and the blanks around it. Of a text longer than any line on a screen
// or sheet only the beginning.
Text drawable(TextSpan text);
bool isBlank(TextSpan text); // nothing in it that could be seen

// `text` when it is at most `room` wide, else its longest beginning that leaves room for an ellipsis behind
// it; empty when not even the ellipsis fits.
Text elided(Text text, double room, const std::function<double(TextSpan)>& widthOf);

} // namespace plotvue::chart
