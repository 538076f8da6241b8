#include "group/frmqxm21cxs.h"

#include "capture/failure.h"
#include "capture/number.h"

#include <array>

namespace plotvue {

namespace {

// Options by index: a data type, then a group or the total. Within a group this window takes the first figure
// for sales, the second for profit and the third for volume, unlike its sister.
constexpr std::array<TextSpan, figuresAGroup> types{u"Sales", u"Profit", u"Volume"};
constexpr int firstGroup = 3;
constexpr int total = firstGroup + mostGroups;
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
    std::vector<Item> side{{groupTypeFrame()}, {groups}, {Space{}, 1}};
    for (Item& button : groupButtons())
        side.push_back(std::move(button));
    return {
        .name = name(),
        .caption = u"Plotvue!",
        .content = {
            Box::Direction::Row,
            {{ChartBox{.name = "ChartFX1", .chart = {.design = {.labels = ChartDesign::Labels::Names}}}, 3},
             {GridBox{.name = "MSFlexGrid1",
                      .spokenName = u"Figures charted",
                      .format = u"<Sales Rep|>",
                      .figures = {1}},
              1},
             column(std::move(side))}}};
}

void frmQXM21CXS::drawChart(TextSpan capture)
{
    const int type = chosenType(), group = chosenGroup();
    std::vector<bool> wanted;
    for (int i = 0; i < mostGroups * figuresAGroup; ++i)
        wanted.push_back(i % figuresAGroup == type &&
                         (group == total || group == firstGroup + i / figuresAGroup));
    const GroupScreen screen = readCapture(capture, [&] { return readGroups(capture, wanted); });

    Text title(types.at(static_cast<std::size_t>(type)));
    title += u" - ";
    title += nameGroups(screen);

    const std::size_t slots = screen.salesmen.size() + 1;
    std::vector<double> values(slots);
    std::vector<Text> labels(slots);
    for (std::size_t s = 0; s + 1 < slots; ++s) {
        labels[s] = screen.salesmen[s].label;
        for (const double figure : screen.salesmen[s].figures)
            values[s] = finite(values[s] + figure);
    }
    fillGrid(labels, values, title);

    ChartArrayData data;
    data.AddArray(values);
    data.AddArray(labels);
    controls().chart("ChartFX1").change([&](Chart& ChartFX1) {
        ChartFX1.SetTitle(2, screen.subject);
        ChartFX1.SetTitle(3, title);
        ChartFX1.SetChartData(data);
    });
}

TextSpan frmQXM21CXS::nameGroups(const GroupScreen& screen)
{
    const int group = chosenGroup();
    TextSpan chosen;
    controls().options("optSales").change([&](OptionGroup& optSales) {
        for (int i = 0; i < mostGroups; ++i) {
            const bool there = i < screen.groups;
            const TextSpan caption = there ? screen.names[static_cast<std::size_t>(i)] : TextSpan{};
            optSales.setCaption(firstGroup + i, caption);
            optSales.setVisible(firstGroup + i, there);
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
            MSFlexGrid1.setCell(row, 1, plainNumber(values[i]));
        }
    });
}

} // namespace plotvue
