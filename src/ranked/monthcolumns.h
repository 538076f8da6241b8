// Thirteen months side by side on a line of the host: labels, figures, and the data types made of them.
#pragma once

#include "chart/chart.h"
#include "ranked/drilldown.h"

namespace plotvue {

inline constexpr int monthColumns = 13;
inline constexpr Position columnWidth = 8;

// "12345678" starting at column 8k - 5 for month k = 1 to 13, read as a number.
double monthFigure(TextSpan line, int month, Position width = columnWidth);

// "OCT99" starting at column 5k - 4 for month k.
Text monthLabel(TextSpan labels, int month);

// The data types of a drill-down window over a volume, a sales and a profit line.
struct MonthLines {
    TextSpan volume, sales, profit;
    Position profitWidthOfPercent = columnWidth; // the profit's width where it is divided by sales
};

struct MonthType {
    TextSpan option, title;
    int decimals;
};

const std::array<MonthType, 5>& monthTypes();
std::vector<TextSpan> monthTypeOptions();

// Labels and figures of 13 points. The host prints the newest month first: point 12 is month 1.
ChartArrayData monthSeries(TextSpan labels, const MonthLines& lines, int type);

} // namespace plotvue
