// Which host screen a text is.
#pragma once

#include "app/screens.h"

namespace plotvue {

// The first screen of the list whose marker the text holds; null when there is none. Throws Failure when the
// screen needs a "0" and the first "0" of the text is after position 32767.
const Screen* recognise(TextSpan text);

} // namespace plotvue
