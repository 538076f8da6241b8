// What the month-to-month and the ranked profit analysis share.
#pragma once

#include "ranked/analyses.h"
#include "ranked/reading.h"

namespace plotvue::profit {

enum Number { figure, customer, volumePart, marginPart }; // the figure decides which grid holds the entry
enum EntryTextSlot { customerName, group };
enum PageTextSlot { monthLabels, header, salesLine };
enum Total { current, previous };
enum Count { gains, losses };

Marker rankMarker();
Marker salesLineMarker();
Marker labelMarker();

// `previousColumn` and the length behind it reach to column 30.
Marker totalsMarker(Position previousColumn);

// Counts the entry that the line belongs to as a gain, or as a loss when its figure is 0 or less.
void count(RankedReading& reading, TextSpan line);

std::vector<Item> heading();
std::map<Name, Text (*)(const RankedReading&)> summary();
RankedGrid grid(GridBox box, Count count, RankedGrid::Holds holds, std::optional<PictureBox> picture = {});
Key key();

// Charts and data types of both drill-down windows. `componentLine` is the line that holds the components
// of the change.
std::vector<Item> charts();
void draw(Controls& controls, const Record& record, int type, TextSpan componentLine);

} // namespace plotvue::profit
