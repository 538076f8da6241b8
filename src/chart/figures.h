// Which of a chart's series and slots count, what they are called and how they are read out.
#pragma once

#include "chart/chart.h"

#include <optional>
#include <vector>

namespace plotvue::chart {

// A view: the chart must outlive it. Slots count from 0, and so do the series here, in which those
// that do not count are left out: hidden ones, a projection of nothing, and a series without name and figures
// beside named ones (a group that the screen does not have).
class Figures {
public:
    struct Series {
        std::size_t number = 0; // in the chart
        TextSpan name;          // may be empty
        Colour colour;
        bool ownColour = false; // asked for by the chart, not taken from the palette
        bool projection = false;
    };

    explicit Figures(const Chart& chart);

    const Chart& chart() const { return chart_; }

    const std::vector<Series>& series() const { return series_; }
    // A chart of one point a series and no labels compares its series: each gets a slot and its name as
    // label.
    bool components() const { return components_; }
    bool stacked() const { return stacked_; }
    bool legendTellsSomething() const;

    int slotCount() const { return slotCount_; }   // as wide as the chart is drawn
    int pointCount() const { return pointCount_; } // without an empty slot at the end
    TextSpan label(int slot) const;                // raw; empty when there is none

    // Absent where the series is too short; 0 for what is not a number; brought into what can be added up.
    std::optional<double> value(std::size_t series, int slot) const;
    Text number(double value) const;
    // "OCT99: Sales 512, Projected 388"; empty for a slot that is no point.
    Text sentence(int slot) const;

private:
    bool nothingIn(const std::vector<double>& values) const;
    TextSpan nameOf(int number, bool alone) const; // alone: the only series shown
    void findSeries();
    void findSlots();
    int decimalsOfValues() const;

    const Chart& chart_;
    std::vector<Series> series_;
    bool components_ = false, stacked_ = false;
    int slotCount_ = 0, pointCount_ = 0, decimals_ = 0;
};

// The titles in the order in which they are drawn, joined by ", ".
Text titlesInOneLine(const Chart& chart);

} // namespace plotvue::chart
