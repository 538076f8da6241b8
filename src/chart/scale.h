// The value axis: its ends, and the figures along it.
#pragma once

#include "chart/plotdata.h"

namespace plotvue::chart {

struct Range {
    double low = 0, high = 0; // low <= 0 <= high
    bool operator==(const Range&) const = default;
};

// From the lowest end of a bar or stack to the highest.
Range reachOf(const PlotData& data);

struct Scale {
    double min = 0, max = 1;
    int decimals = 0;
    std::vector<double> ticks{0, 1}; // ascending, within min and max
    bool operator==(const Scale&) const = default;
};

// An axis with steps of 1, 2, 2.5 or 5 times a power of ten that `decimals` can write exactly, and about
// `maxSteps` of them at most. A wished end is kept, even where it has no tick, unless bars reach beyond it.
// Where the wished maximum is not above the minimum, neither counts.
struct ScaleWishes {
    std::optional<double> min, max;
    std::optional<int> decimals; // absent: as many as the steps need
    int maxSteps = 5;
};
Scale scaleFor(Range reach, const ScaleWishes& wishes);

} // namespace plotvue::chart
