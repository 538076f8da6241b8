#include "group/frmqxm21sxc.h"

#include "capture/failure.h"

#include <algorithm>
#include <array>

namespace plotvue {

namespace {

struct Type {
    TextSpan title;
    int place; // among the values of a group
};

// Kept: two orders of the figures (docs/kept.md).
constexpr std::array types{Type{u"Sales", 0}, Type{u"Profit", 2}, Type{u"Volume", 1}};

constexpr int minSeries = 3; // Kept: three series for fewer groups (docs/kept.md).

} // namespace

Declaration frmQXM21SXC::declare() const
{
    return declareScreenWindow(name(), u"Plotvue!",
                               {{ChartBox{.name = "ChartFX1",
                                          .chart = {.design = {.bars = ChartDesign::Bars::Grouped,
                                                               .labels = ChartDesign::Labels::Names}}},
                                 1}},
                               {groupTypeFrame()});
}

void frmQXM21SXC::drawGroups(TextSpan capture)
{
    const Type& type = types.at(static_cast<std::size_t>(chosenType()));
    std::vector<bool> wanted;
    for (int i = 0; i < maxGroups * valuesPerGroup; ++i)
        wanted.push_back(i % valuesPerGroup == type.place);
    const GroupFigures figures = nameFailedLine(capture, [&] { return readGroups(capture, wanted); });

    const std::size_t slots = figures.salesmen.size() + 1;
    std::vector<std::vector<double>> series(maxGroups, std::vector<double>(slots));
    std::vector<Text> labels(slots);
    for (std::size_t s = 0; s + 1 < slots; ++s) {
        const Salesman& salesman = figures.salesmen[s];
        labels[s] = salesman.label;
        const std::size_t groups = salesman.values.size() / valuesPerGroup;
        for (std::size_t group = 0; group < groups; ++group)
            series[group][s] = salesman.values[group * valuesPerGroup + static_cast<std::size_t>(type.place)];
    }
    ChartArrayData data;
    series.resize(static_cast<std::size_t>(std::clamp(figures.groups, minSeries, maxGroups)));
    for (const std::vector<double>& values : series)
        data.AddArray(values);
    data.AddArray(labels);

    controls().chart("ChartFX1").change([&](Chart& ChartFX1) {
        ChartFX1.clearLegends();
        ChartFX1.SetTitle(2, figures.subject);
        // Kept: a title that is not set (docs/kept.md).
        if (figures.groups > 0 && !figures.salesmen.empty())
            ChartFX1.SetTitle(3, type.title);
        ChartFX1.SetChartData(data);
        for (std::size_t i = 0; i < figures.names.size(); ++i)
            ChartFX1.SetSeriesLegend(static_cast<int>(i), figures.names[i]);
    });
}

} // namespace plotvue
