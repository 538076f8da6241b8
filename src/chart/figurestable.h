// The figures of a chart as a table that a spreadsheet can paste.
#pragma once

#include "chart/plotdata.h"

namespace plotvue {

// The figures as text: cells are separated by tabs, and each line ends in CR LF. After a heading with the
// names of the series, there is a line for each point with its full label and a figure of each series, as
// plainNumber() writes it but with `decimalSign` as the point. A cell is empty if the series has no finite
// figure there. Components are in one line. The text is empty if no series is shown.
Text figuresTable(const PlotData& data, char16_t decimalSign);

} // namespace plotvue
