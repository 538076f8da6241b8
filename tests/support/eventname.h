// The names of events in what tests print and compare.
#pragma once

#include "recording/observed.h"

#include <array>

namespace plotvue::test {

inline std::string_view nameOf(Event::Kind kind)
{
    constexpr std::array<std::string_view, 10> names{"load",  "show", "hide", "unload", "message",
                                                     "print", "copy", "spin", "error",  "end"};
    return names.at(static_cast<std::size_t>(kind));
}

} // namespace plotvue::test
