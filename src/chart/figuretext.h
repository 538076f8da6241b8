// A figure as the chart writes it.
#pragma once

#include "capture/text.h"

namespace plotvue::chart {

inline constexpr int maxDecimals = 9;

// `value` with that many decimals (less than 0 counts as 0, more than maxDecimals as maxDecimals), commas
// between thousands and U+2212 as the minus sign, which is left out where the figure rounds to zero. From
// 10^15 on, with an exponent.
Text figureText(double value, int decimals);

// The fewest decimals that write `value` without rounding it, but at most `max`.
int decimalsNeeded(double value, int max);

} // namespace plotvue::chart
