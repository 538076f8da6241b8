// Which host screen a text is.
#pragma once

#include "app/screens.h"

namespace plotvue {

// The first screen of the list whose marker the text holds; null when there is none. Goes once through the
// text. Throws Failure when the screen needs a "0" and the first one is after position 32767.
const Screen* recognise(TextSpan text);

} // namespace plotvue
