// What a chart shows, and the operations that change it. A series is a row of figures; a slot is a place on
// the horizontal axis, with a label and a figure of each series. Series and slots count from 0, title
// positions from 1.
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

// Fixed when the window is designed.
struct ChartDesign {
    enum class Bars { Stacked, Grouped };
    enum class Labels { Months, Names }; // where room is short, some months go unlabelled, names never

    Bars bars = Bars::Stacked;
    Labels labels = Labels::Months;
    int projection = -1; // the series that projects the one before it; -1: none
    // By series, used where several are shown; SetSeriesLegend overrides them. A series that is shown alone
    // or has no legend is called by the title at position 1.
    std::map<int, TextSpan> legends{};

    bool operator==(const ChartDesign&) const = default;
};

// The series and point labels that are handed over together.
class ChartArrayData {
public:
    void AddArray(const std::vector<double>& values);       // the next series
    void AddArray(const std::vector<std::int32_t>& values); // the next series
    void AddArray(const std::vector<Text>& labels);         // the point labels; replaces earlier ones

private:
    friend struct Chart;
    std::vector<std::vector<double>> series_;
    std::vector<Text> labels_;
};

struct Chart {
    ChartDesign design{};
    std::map<int, Text> titles{};  // only the positions that were set
    std::optional<int> decimals{}; // of the value axis; absent: as many as its steps need
    std::vector<std::vector<double>> series{};
    std::vector<Text> labels{};      // of the slots; may be empty, may end with an empty label
    std::set<int> hidden{};          // series
    std::map<int, Text> legends{};   // by series
    std::map<int, Colour> colours{}; // by series
    std::optional<double> axisMin{}, axisMax{};

    void SetChartData(const ChartArrayData& data); // replaces the earlier data
    void SetTitle(int position, TextSpan text); // 1: small, above; 2: large; 3: below; others are not drawn
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
