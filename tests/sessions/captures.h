// What may be on the clipboard: the captures of samples/, whole and damaged. Bytes of UTF-8, lines ended by
// CR LF.
#pragma once

#include "sessions/random.h"

#include <string>

namespace plotvue::sessions {

struct Capture {
    std::string name, bytes;
};

const std::vector<Capture>& wholeCaptures(); // in the order of their names

std::string damaged(Random& random, const std::string& capture);

} // namespace plotvue::sessions
