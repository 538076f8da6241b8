// The names of the financial ratios and the notes on them.
#pragma once

#include "capture/text.h"

namespace plotvue {

struct Ratio {
    TextSpan code; // four characters; blanks and case count
    TextSpan name, note;
};

// Of an unknown code, the name is "Undefined Ratio" and the note "No information available.".
const Ratio& ratio(TextSpan code);
const Ratio& ratioOrComponent(TextSpan code); // also knows the components of the ratios' formulas

} // namespace plotvue
