// The two salesman/category screens: a heading, the group line, the subject, and a line per salesman.
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
    Text label;                  // columns 1-2, "_", columns 3-4
    std::vector<double> figures; // three a group, group after group; 0 where the line has no more
};

struct GroupScreen {
    TextSpan subject;            // columns 7 to 15 of line 3
    int groups = 0;              // as the screen says, at most 4 are read
    std::vector<TextSpan> names; // one a group
    std::vector<Salesman> salesmen;
};

inline constexpr int mostGroups = 4;
inline constexpr int figuresAGroup = 3;

// Lines that the text no longer has read as empty ones. Of the 12 figures of a salesman, counted from 0, only
// those that `wanted` says are read; the others are 0.
// Throws Failure for more than 23 salesmen, or fewer than none, for a count outside 16 bits and for a figure
// too large for a double. The views point into the capture.
GroupScreen readGroups(TextSpan capture, const std::vector<bool>& wanted);

} // namespace plotvue
