// The content of a chart, and the operations that change it. A series is a sequence of figures. A slot is a
// place on the horizontal axis, with a label and one figure of each series. Series and slots are counted from
// 0, title positions from 1.
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

// Set once, in the declaration of a window.
struct ChartDesign {
    enum class Bars { Stacked, Grouped };
    enum class Labels { Months, Names }; // if space is short, months are thinned out and names are slanted

    Bars bars = Bars::Stacked;
    Labels labels = Labels::Months;
    int projection = -1; // number of the series that holds the projections of the one before; -1: none
    // By series, used if several series are shown; SetSeriesLegend overrides them. A series that is shown
    // alone or has no legend has the title at position 1 as its name.
    std::map<int, TextSpan> legends{};

    bool operator==(const ChartDesign&) const = default;
};

// The series and slot labels for SetChartData.
class ChartArrayData {
public:
    void AddArray(const std::vector<double>& values); // appends a series
    void AddArray(const std::vector<Text>& labels);   // replaces the slot labels
    void setFullLabels(const std::vector<Text>& labels) { fullLabels_ = labels; }

private:
    friend struct Chart;
    std::vector<std::vector<double>> series_;
    std::vector<Text> labels_, fullLabels_;
};

struct Chart {
    ChartDesign design{};
    std::map<int, Text> titles{};  // only the positions that were set
    std::optional<int> decimals{}; // of the value axis; absent: as many as its steps need
    std::vector<std::vector<double>> series{};
    std::vector<Text> labels{};      // of the slots from 0; there may be fewer or none
    std::vector<Text> fullLabels{};  // the labels in full, for the read-out; empty: as `labels`
    std::set<int> hidden{};          // the numbers of the series that are not shown
    std::map<int, Text> legends{};   // by series
    std::map<int, Colour> colours{}; // by series
    std::optional<double> axisMin{}, axisMax{};

    void SetChartData(const ChartArrayData& data); // replaces the earlier data
    // Position 1 is small and on top, 2 is large, 3 is below it. Titles at other positions are not drawn.
    void SetTitle(int position, TextSpan text);
    void SetValueDecimals(int count) { decimals = count; }
    void SetSeriesLegend(int number, TextSpan text) { legends[number] = text; }
    void SetSeriesColor(int number, Colour colour) { colours[number] = colour; }
    void SetAxisMin(double value) { axisMin = value; }
    void SetAxisMax(double value) { axisMax = value; }
    void showSeries(int number, bool shown);
    void clearLegends() { legends.clear(); }

    bool operator==(const Chart&) const = default;
};

} // namespace plotvue
