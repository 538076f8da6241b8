// Lines with a figure for each of 13 months, the newest first, and the data types that a chart makes of them.
#pragma once

#include "chart/chart.h"
#include "ranked/drilldownwindow.h"

namespace plotvue {

inline constexpr int monthColumns = 13;
inline constexpr Position columnWidth = 8; // of a figure

// The 5 characters at column 5 * month - 4: "OCT99". Months count from 1, the newest.
Text monthLabel(TextSpan labels, int month);

// The lines from which the data types are worked out.
struct MonthLines {
    TextSpan volume, sales, profit;
    Position profitWidthOfPercent = columnWidth; // the width of the profit that is divided by sales
};

struct MonthType {
    TextSpan option, title;
    int decimals;
};

const std::array<MonthType, 5>& monthTypes();
std::vector<TextSpan> monthTypeOptions();

// The labels and figures of 13 points, the oldest month first. `type` is an index into monthTypes().
ChartArrayData monthSeries(TextSpan labels, const MonthLines& lines, int type);

} // namespace plotvue
