// Which host screen a text is.
#pragma once

#include "capture/text.h"

namespace plotvue {

struct Recognised {
    TextSpan identifier; // of the screen, or an internal one for the ranked analyses; empty: none
    bool ranked = false; // the whole capture goes to the scratch file
};

// Takes the first marker of the recognition order that occurs in `screen`. One pass, whatever the length.
// Throws Failure when a marker that asks for a "0" has its first "0" behind position 32767.
Recognised recognise(TextSpan screen);

} // namespace plotvue
