// The format of the figures in a chart.
#pragma once

#include "capture/text.h"

namespace plotvue {

inline constexpr int maxDecimals = 9;

// `value` with commas between thousands and U+2212 as the minus sign, which is omitted if the figure rounds
// to zero. `decimals` is clamped to the range from 0 to maxDecimals. From 10^15 on, the figure has an
// exponent.
Text figureText(double value, int decimals);

// The minimum number of decimals that write `value` without rounding it, but at most `max`.
int decimalsNeeded(double value, int max);

} // namespace plotvue
