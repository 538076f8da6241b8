// The figures of a chart as a table that a spreadsheet can paste.
#pragma once

#include "chart/plotdata.h"

namespace plotvue {

// Lines that end in CR LF, of cells separated by tabs: a heading with the names of the series, then a line
// per point with its full label and a figure of each series, as plainNumber() writes it but with
// `decimalSign` as the point. A cell is empty if the series has no finite figure there. Series that compare
// components are one line. Empty if no series is shown.
Text figuresTable(const PlotData& data, char16_t decimalSign);

} // namespace plotvue
