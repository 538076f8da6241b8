#include "group/frmqxm21cxs.h"

#include "capture/failure.h"
#include "capture/number.h"

#include <array>

namespace plotvue {

namespace {

// The indexes of the options count the data types, then the groups, then the total.
// Kept: one option group in two frames, two orders of the figures (docs/kept.md).
constexpr std::array<TextSpan, valuesPerGroup> typeNames{u"Sales", u"Profit", u"Volume"};
constexpr int firstGroup = 3;
constexpr int total = firstGroup + maxGroups;
constexpr TextSpan totalName = u"ALL";

} // namespace

Declaration frmQXM21CXS::declare() const
{
    const OptionFrame groups{.name = "Frame2",
                             .caption = u"Groups",
                             .spokenName = u"Groups",
                             .group = "optSales",
                             .options = {{3, u""}, {4, u""}, {5, u""}, {6, u""}, {total, u"Total"}},
                             .chosen = total};
    return declareScreenWindow(
        name(), u"Plotvue!",
        {{ChartBox{.name = "ChartFX1", .chart = {.design = {.labels = ChartDesign::Labels::Names}}}, 3},
         {GridBox{.name = "MSFlexGrid1",
                  .spokenName = u"Figures charted",
                  .format = u"<Sales Rep|>",
                  .figures = {1}},
          1}},
        {groupTypeFrame(), groups});
}

void frmQXM21CXS::drawGroups(TextSpan capture)
{
    const int type = chosenType(), group = chosenGroup();
    std::vector<bool> wanted;
    for (int i = 0; i < maxGroups * valuesPerGroup; ++i)
        wanted.push_back(i % valuesPerGroup == type &&
                         (group == total || group == firstGroup + i / valuesPerGroup));
    const GroupFigures figures = nameFailedLine(capture, [&] { return readGroups(capture, wanted); });

    Text title(typeNames.at(static_cast<std::size_t>(type)));
    title += u" - ";
    title += nameGroups(figures);

    const std::size_t slots = figures.salesmen.size() + 1;
    std::vector<double> values(slots);
    std::vector<Text> labels(slots);
    for (std::size_t s = 0; s + 1 < slots; ++s) {
        labels[s] = figures.salesmen[s].label;
        for (const double value : figures.salesmen[s].values)
            values[s] = finite(values[s] + value);
    }
    fillGrid(labels, values, title);

    ChartArrayData data;
    data.AddArray(values);
    data.AddArray(labels);
    controls().chart("ChartFX1").change([&](Chart& ChartFX1) {
        ChartFX1.SetTitle(2, figures.subject);
        ChartFX1.SetTitle(3, title);
        ChartFX1.SetChartData(data);
    });
}

TextSpan frmQXM21CXS::nameGroups(const GroupFigures& figures)
{
    const int group = chosenGroup();
    TextSpan chosen;
    controls().options("optSales").change([&](OptionGroup& optSales) {
        for (int i = 0; i < maxGroups; ++i) {
            const bool there = i < figures.groups;
            const TextSpan caption = there ? figures.names[static_cast<std::size_t>(i)] : TextSpan{};
            optSales.setCaption(firstGroup + i, caption);
            optSales.setVisible(firstGroup + i, there); // Kept: a chosen group that is hidden (docs/kept.md).
            if (group == firstGroup + i)
                chosen = caption;
        }
    });
    return group == total ? totalName : chosen;
}

void frmQXM21CXS::fillGrid(const std::vector<Text>& labels, const std::vector<double>& values, TextSpan title)
{
    controls().grid("MSFlexGrid1").change([&](Grid& MSFlexGrid1) {
        MSFlexGrid1.setRows(static_cast<int>(values.size()));
        MSFlexGrid1.setFormat(u"<Sales Rep|>" + Text(title));
        for (std::size_t i = 0; i + 1 < values.size(); ++i) {
            const int row = static_cast<int>(i) + 1;
            MSFlexGrid1.setCell(row, 0, labels[i]);
            // Kept: numbers without separators (docs/kept.md).
            MSFlexGrid1.setCell(row, 1, plainNumber(values[i]));
        }
    });
}

} // namespace plotvue
