// From a capture and what is chosen to the figures of a chart: pure, nothing is kept.
#pragma once

#include "history/screen.h"

namespace plotvue {

// What the needed words say of a capture.
struct Acceptance {
    bool leave = false;      // hide the window and show the start-up window
    bool stop = false;       // read no further
    bool end = false;        // end the process
    Position identifier = 0; // position of the last word looked for; 0 when absent
};

// Throws Failure when a position that the screen holds in 16 bits does not fit.
Acceptance accept(const MonthlyScreen& screen, TextSpan capture);

// Slots run from the oldest month read to the newest; one more slot at the end stays empty.
struct MonthlyFigures {
    std::vector<double> values;
    std::vector<double> second; // empty where the screen has no second series
    std::vector<Text> labels;
    Text subject, subject2;
};

// Reads `months` months for one of the screen's data types. `identifier` is where the screen identifier
// stands. Throws Failure for what the screen cannot be charted with, EndlessRead for a capture that ends
// within its first 19 lines.
MonthlyFigures readMonths(const MonthlyScreen& screen, TextSpan capture, Position identifier, int months,
                          const DataType& type);

} // namespace plotvue
