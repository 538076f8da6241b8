// The value axis: its range and its ticks.
#pragma once

#include "chart/plotdata.h"

namespace plotvue {

struct Range {
    double low = 0, high = 0; // low <= 0 <= high
    bool operator==(const Range&) const = default;
};

// The range from the lowest end of a bar or stack to the highest.
Range reachOf(const PlotData& data);

struct Scale {
    double min = 0, max = 1;
    int decimals = 0;
    std::vector<double> ticks{0, 1}; // ascending, within min and max
    bool operator==(const Scale&) const = default;
};

// Chooses an axis with a step of 1, 2, 2.5 or 5 times a power of ten that `decimals` can write exactly, and
// with about `maxSteps` steps at most. A requested end is kept, even without a tick, unless bars extend
// beyond it. If the requested maximum is not above the minimum, both are ignored.
struct ScaleWishes {
    std::optional<double> min, max;
    std::optional<int> decimals; // absent: as many as the steps need
    int maxSteps = 5;
};
Scale scaleFor(Range reach, const ScaleWishes& wishes);

} // namespace plotvue
