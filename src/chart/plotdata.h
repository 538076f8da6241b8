// The part of a chart's data that is plotted: series and slots, their names and the text of their read-outs.
#pragma once

#include "chart/chart.h"

#include <optional>
#include <vector>

namespace plotvue {

// Refers to the chart, which must outlive it. Slots and series are counted from 0. These series are left out:
// hidden ones; a projection that is zero everywhere; and, if another series has a name, a series without name
// and figures (a group that the screen does not have).
class PlotData {
public:
    struct Series {
        std::size_t number = 0; // index in Chart::series
        TextSpan name;          // may be empty
        Colour colour;
        bool ownColour = false; // set by the chart, not from the palette
        bool projection = false;
    };

    explicit PlotData(const Chart& chart);

    const Chart& chart() const { return chart_; }

    const std::vector<Series>& series() const { return series_; }
    // Whether the chart compares its series: it has no labels, and its series have one point each. Then each
    // series has a slot of its own, labelled with its name.
    bool components() const { return components_; }
    bool stacked() const { return stacked_; }
    bool legendTellsSomething() const;

    int slotCount() const { return slotCount_; }   // including an empty slot at the end
    int pointCount() const { return pointCount_; } // without an empty slot at the end
    // Unchanged; empty if there is none. The full label is for texts outside the axis: "JUL98" where the
    // label is "J98".
    TextSpan label(int slot) const;
    TextSpan fullLabel(int slot) const;

    // Absent if the series is too short, 0 for NaN, and clamped to -1e300 to 1e300, so that sums are finite.
    std::optional<double> value(std::size_t series, int slot) const;
    Text number(double value) const;
    // The text of the read-out, "OCT99: Sales 512, Projected 388"; empty for a slot that is not a point.
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

} // namespace plotvue
