// Reads what a chart shows from the capture of a monthly screen.
#pragma once

#include "history/monthlyscreen.h"

namespace plotvue {

// What the window has to do with a capture, by the words that its screen requires.
struct Acceptance {
    bool leave = false;      // the window hides and the start-up window is shown
    bool stop = false;       // nothing is charted
    bool end = false;        // the process ends
    Position identifier = 0; // position of the screen identifier; 0 where it is absent or not looked for
};

// Throws Failure when the position of a word must fit into 16 bits and does not.
Acceptance accept(const MonthlyScreen& screen, TextSpan capture);

// The series have a slot for every month, from the oldest to the newest, and an empty one at the end.
struct MonthlyFigures {
    std::vector<double> values;
    std::vector<double> second;           // empty where the screen has no second series
    std::vector<Text> labels, fullLabels; // on the axis, and without abbreviations
    Text subject, subject2;               // the titles at the positions 2 and 3
};

// Reads the newest `months` months for one of the screen's data types. `identifier` is the position of the
// screen identifier. Throws Failure where the screen cannot be charted, TooFewLines for a capture that ends
// within its first 19 lines.
MonthlyFigures readMonths(const MonthlyScreen& screen, TextSpan capture, Position identifier, int months,
                          const DataType& type);

} // namespace plotvue
