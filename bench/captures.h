// The captures that are timed.
#pragma once

#include "capture/text.h"

#include <string>

namespace plotvue {

// A file of samples/.
Text sampleCapture(const std::string& name);

// Month-to-month analysis of 100 entries on 504 lines.
Text rankedCapture();

// Text of that many characters, a letter of business with capitals, figures and line ends, that is no host
// screen.
Text foreignText(std::size_t characters);

} // namespace plotvue
