// The value axis: where it begins and ends and which figures stand along it.
#pragma once

#include "chart/figures.h"

namespace plotvue::chart {

struct Range {
    double low = 0, high = 0; // low <= 0 <= high
    bool operator==(const Range&) const = default;
};

// What the bars reach, stacks added up.
Range reachOf(const Figures& figures);

struct Scale {
    double min = 0, max = 1;
    int decimals = 0;
    std::vector<double> ticks{0, 1}; // ascending, within min and max
    bool operator==(const Scale&) const = default;
};

// Steps of 1, 2, 2.5 or 5 times a power of ten that `decimals` can write exactly, at most about `mostSteps`
// of them. A given end is kept even where no tick is, unless bars reach beyond it: they are drawn whole. A
// maximum not above the minimum leaves the axis to itself.
struct ScaleWishes {
    std::optional<double> min, max;
    std::optional<int> decimals; // absent: as many as the steps need
    int mostSteps = 5;
};
Scale scaleFor(Range reach, const ScaleWishes& wishes);

} // namespace plotvue::chart
