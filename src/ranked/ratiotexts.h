// The names of the financial ratios and the notes on them. A code has four characters; blanks and case count.
#pragma once

#include "capture/text.h"

namespace plotvue {

// "Undefined Ratio" for an unknown code.
TextSpan ratioName(TextSpan code);

// The same for ratios and for the components of their formulas.
TextSpan ratioOrComponentName(TextSpan code);

// "No information available." for an unknown code.
TextSpan ratioOrComponentNote(TextSpan code);

} // namespace plotvue
