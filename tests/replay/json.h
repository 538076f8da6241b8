// Events and window states as JSON, one object per line, with keys in a fixed order.
#pragma once

#include "recording/observed.h"
#include "replay/seen.h"

namespace plotvue::replay {

std::string toJson(const Event& event);
std::string toJson(Name window, bool visible, const SeenWindow& seen);
std::string unloadedJson(Name window);

} // namespace plotvue::replay
