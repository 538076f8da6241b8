// The part of a chart's data that is plotted: its series and slots, what they are called and how they are
// read out.
#pragma once

#include "chart/chart.h"

#include <optional>
#include <vector>

namespace plotvue::chart {

// Refers to the chart, which must outlive it. Slots and series count from 0. Series that are not plotted are
// left out: hidden ones, a projection that is zero everywhere, and a series that has neither name nor figures
// while another has a name (a group that the screen does not have).
class PlotData {
public:
    struct Series {
        std::size_t number = 0; // in the chart
        TextSpan name;          // may be empty
        Colour colour;
        bool ownColour = false; // the chart asks for it; else it is of the palette
        bool projection = false;
    };

    explicit PlotData(const Chart& chart);

    const Chart& chart() const { return chart_; }

    const std::vector<Series>& series() const { return series_; }
    // A chart without labels whose series have one point each compares its series: each gets a slot of its
    // own, labelled with its name.
    bool components() const { return components_; }
    bool stacked() const { return stacked_; }
    bool legendTellsSomething() const;

    int slotCount() const { return slotCount_; }   // drawn, the empty one included
    int pointCount() const { return pointCount_; } // without an empty slot at the end
    TextSpan label(int slot) const;                // as it was handed over; empty when there is none

    // Absent where the series is too short; 0 for what is not a number; at most 1e300 either way, so that
    // sums of them are finite.
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
