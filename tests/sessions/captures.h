// The captures of samples/, whole and damaged, as UTF-8 with CR LF line ends.
#pragma once

#include "sessions/random.h"

#include <string>

namespace plotvue::sessions {

struct Capture {
    std::string name, bytes;
};

const std::vector<Capture>& wholeCaptures(); // sorted by name

std::string damaged(Random& random, const std::string& capture);

} // namespace plotvue::sessions
