// The capture as text: UTF-16 units, positions counted from 1, 0 for absent.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace plotvue {

using Text = std::u16string;
using TextSpan = std::u16string_view;
using Position = std::ptrdiff_t;

inline constexpr char16_t carriageReturn = u'\r';
inline constexpr Position toTheEnd = std::numeric_limits<Position>::max();

// Position of the first `wanted` in `text`; 0 when it does not occur. An empty `wanted` is found at 1.
Position find(TextSpan text, TextSpan wanted);
bool holds(TextSpan text, TextSpan wanted);

// At most `length` characters from position `start`; what lies behind the end of `text` is left out.
// Throws Failure when `start` is below 1 or `length` below 0.
TextSpan mid(TextSpan text, Position start, Position length = toTheEnd);

// `text` less its last character, which in a line is the carriage return; empty for an empty text.
TextSpan withoutLast(TextSpan text);

} // namespace plotvue
