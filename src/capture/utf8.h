// UTF-8 on disk, UTF-16 inside. A half of a surrogate pair alone goes out and comes back as its own three
// bytes; bytes that are no UTF-8 come in as U+FFFD.
#pragma once

#include "capture/text.h"

namespace plotvue {

std::string toUtf8(TextSpan text);
Text fromUtf8(std::string_view bytes);

} // namespace plotvue
