// A figure as the chart writes it.
#pragma once

#include "capture/text.h"

namespace plotvue::chart {

inline constexpr int mostDecimals = 9;

// With `decimals` (0 to mostDecimals, others are brought into it), commas between thousands and U+2212 before
// what does not round to zero. From 10^15 on with an exponent.
Text figureText(double value, int decimals);

// The fewest decimals, at most `most`, that write `value` without rounding it.
int decimalsNeeded(double value, int most);

} // namespace plotvue::chart
