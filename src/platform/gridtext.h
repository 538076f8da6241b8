// The text of a grid, as it is shown and as it is copied.
#pragma once

#include "platform/controls.h"

namespace plotvue {

// The heading of each column, including its blanks, which define the width of the column.
std::vector<Text> headingsOf(const Grid& grid);

// A cell or heading as it is shown: on one line, without control characters and without blanks at its ends.
Text cellText(TextSpan text);

// The headings and all rows as text: cells are separated by tabs, and each line ends in CR LF. Empty if the
// grid has no rows.
Text rowsTable(const Grid& grid);

} // namespace plotvue
