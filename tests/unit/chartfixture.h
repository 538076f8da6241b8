// Layouts with fixed text metrics: every line is 12 high, and every character is 6 wide, or 5 in
// TextRole::Tiny, 7 in MediumTitle and 8 in LargeTitle.
#pragma once

#include "chart/layout.h"

#include <sstream>
#include <string>

namespace plotvue {

class SixByTwelve : public Metrics {
public:
    double width(TextSpan text, TextRole role) const override
    {
        const double each = role == TextRole::Tiny          ? 5
                            : role == TextRole::LargeTitle  ? 8
                            : role == TextRole::MediumTitle ? 7
                                                            : 6;
        return each * static_cast<double>(text.size());
    }
    double height(TextRole) const override { return 12; }
};

inline Layout laidOut(Chart chart, const ChartDesign& design, Size paper, double deviceScale = 1)
{
    chart.design = design;
    return layoutChart(PlotData(chart), paper, SixByTwelve(), deviceScale);
}

inline Chart fourBars()
{
    Chart chart;
    chart.decimals = 0;
    chart.series = {{10, 20, 30, 40}};
    chart.labels = {u"A", u"B\r", u"C", u"D"};
    return chart;
}

// Paper for a plot of 400 x 200, with ticks of two digits and no titles.
inline constexpr Size plot400x200{442, 251};

inline std::string narrow(TextSpan text)
{
    std::string bytes;
    for (const char16_t c : text)
        bytes += c == u'\u2212' ? '-' : c == u'\u2026' ? '~' : c < 0x80 ? static_cast<char>(c) : '?';
    return bytes;
}

// "left,top widthxheight"
inline std::string describe(const Rect& box)
{
    std::ostringstream line;
    line << box.left << ',' << box.top << ' ' << box.width << 'x' << box.height;
    return line.str();
}

inline std::string describe(const Line& line)
{
    return narrow(line.text) + " @ " + describe(line.box);
}

template <typename Range, typename Describe>
std::string lines(const Range& range, Describe describeOne)
{
    std::string all;
    for (const auto& one : range)
        all += describeOne(one) + '\n';
    return all;
}

inline std::string describeBars(const Layout& layout)
{
    return lines(layout.bars, [](const Bar& bar) {
        return std::to_string(bar.slot) + "/" + std::to_string(bar.series) + " " + describe(bar.box) +
               (bar.up ? " up" : " down") + (bar.end ? " end" : "");
    });
}

inline std::string describeValues(const Layout& layout)
{
    return lines(layout.values, [](const SlotValue& value) { return describe(value.figure); });
}

inline std::string describeLabels(const Layout& layout)
{
    return lines(layout.labels, [](const SlotLabel& label) {
        return std::to_string(label.slot) + " " + narrow(label.name.text) + (label.strong ? "" : " weak");
    });
}

} // namespace plotvue
