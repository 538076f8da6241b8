// Lines with a figure for each of 13 months, the newest first, and the data types that a chart makes of them.
#pragma once

#include "platform/chartcontrol.h"
#include "ranked/drilldown.h"

namespace plotvue {

inline constexpr int monthColumns = 13;
inline constexpr Position columnWidth = 8;

// The number at column 8 * month - 5. Months count from 1, the newest.
double monthFigure(TextSpan line, int month, Position width = columnWidth);

// The 5 characters at column 5 * month - 4: "OCT99".
Text monthLabel(TextSpan labels, int month);

// The lines of which the data types are made.
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
