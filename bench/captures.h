// The captures for the measurements.
#pragma once

#include "capture/text.h"

#include <string>

namespace plotvue {

// The text of a file of samples/.
Text sampleCapture(const std::string& name);

// A month-to-month analysis of 100 entries on 504 lines.
Text rankedCapture();

// A text of this many characters that is not a host screen: a business letter with capitals, figures and
// line ends.
Text foreignText(std::size_t characters);

} // namespace plotvue
