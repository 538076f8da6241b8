// Reads the two salesman/category screens: a heading, the groups, the subject, and a line for each salesman.
//
//   1  QXM21SXC
//   2  GROUPS:04 SCOUNT:       5 ;FUELS;LUBES;HEATING;OTHER;
//   3  MONTH OCT99
//   4  0114 52,300.00;18400;6100;...
#pragma once

#include "capture/text.h"

#include <vector>

namespace plotvue {

struct Salesman {
    Text label;                 // columns 1-2, "_", columns 3-4
    std::vector<double> values; // three for each group; 0 where the line is too short
};

struct GroupFigures {
    TextSpan subject;            // columns 7 to 15 of line 3
    int groups = 0;              // the count on the screen; the values of 4 groups at most are read
    std::vector<TextSpan> names; // of the groups
    std::vector<Salesman> salesmen;
};

inline constexpr int maxGroups = 4;
inline constexpr int valuesPerGroup = 3;

// Lines that are missing at the end of the capture are read as empty lines. `wanted` has a flag for each of
// the 12 values of a salesman; a value without its flag is not read and is 0.
// Throws Failure when the count of salesmen is not 0 to 23, for a count that does not fit into 16 bits and
// for a number that is too large for a double. The text spans point into the capture.
GroupFigures readGroups(TextSpan capture, const std::vector<bool>& wanted);

} // namespace plotvue
