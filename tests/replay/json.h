// Events and states as JSON, one object a line, keys in a fixed order.
#pragma once

#include "platform/platform.h"

namespace plotvue::replay {

std::string toJson(const Event& event);
std::string toJson(Name window, bool visible, const ViewState& state);
std::string unloadedJson(Name window);

} // namespace plotvue::replay
