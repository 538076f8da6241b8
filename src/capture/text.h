// Text and the positions in it. A character is a UTF-16 unit. Positions count from 1; 0 means not found.
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

// The position of the first `wanted` in `text`; 0 when there is none. An empty `wanted` is found at 1.
Position find(TextSpan text, TextSpan wanted);
bool holds(TextSpan text, TextSpan wanted);

// The `length` characters from position `start`, or as many as `text` has there: none after its end.
// Throws Failure when `start` is below 1 or `length` below 0.
TextSpan mid(TextSpan text, Position start, Position length = toTheEnd);

// `text` without its last character, which in a line is the carriage return; empty for an empty text.
// Kept: the last character of a line (docs/kept.md).
TextSpan withoutLast(TextSpan text);

} // namespace plotvue
