// What the financial ratios are called and what they mean, by the host's code of four characters, blanks and
// case included.
#pragma once

#include "capture/text.h"

namespace plotvue {

// "Undefined Ratio" for a code that is none. The components of formulas have names in the drill-down window
// only.
TextSpan ratioName(TextSpan code);
TextSpan ratioOrComponentName(TextSpan code);

// "No information available." for a code without a note.
TextSpan ratioNote(TextSpan code);

} // namespace plotvue
