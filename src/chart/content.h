// What a chart shows: plain values, filled by the chart operations, read by the layout.
// Series and slots count from 0, title positions from 1.
#pragma once

#include "capture/text.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace plotvue {

struct Colour {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const Colour&) const = default;
};

// As last handed over by the operations of ChartControl.
struct ChartContent {
    std::map<int, Text> titles;  // only the positions that were set
    std::optional<int> decimals; // of the value axis; absent: as many as its steps need
    std::vector<std::vector<double>> series;
    std::vector<Text> labels;      // may be empty, may end with an empty label
    std::set<int> hidden;          // series
    std::map<int, Text> legends;   // by series
    std::map<int, Colour> colours; // by series
    std::optional<double> axisMin, axisMax;
};

// Fixed when the window is designed.
struct ChartDesign {
    enum class Bars { Stacked, Grouped };
    enum class Labels { Months, Names }; // months may be thinned out, names never

    Bars bars = Bars::Stacked;
    Labels labels = Labels::Months;
    int projection = -1;               // the series that projects the one before it; -1: none
    std::map<int, TextSpan> legends{}; // by series, of several shown together, until SetSeriesLegend gives
                                       // another; a series alone or without is called by the title at 1
};

} // namespace plotvue
