// Files are UTF-8, text in memory is UTF-16. Half of a surrogate pair is written as three bytes and read back
// as it was. Each byte that is not part of a UTF-8 character is read as U+FFFD.
#pragma once

#include "capture/text.h"

namespace plotvue {

std::string toUtf8(TextSpan text);
Text fromUtf8(std::string_view bytes);

} // namespace plotvue
