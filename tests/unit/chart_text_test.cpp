// Titles, legend and labels of the chart's layout.
#include "unit/chart_fixture.h"

#include <gtest/gtest.h>

namespace plotvue::chart {

namespace {

ChartContent salesAndProjection()
{
    ChartContent content;
    content.decimals = 0;
    content.titles = {{1, u"Sales"}};
    content.series = {{40, 20}, {0, 10}};
    content.labels = {u"A", u"B"};
    return content;
}

const ChartDesign projecting{ChartDesign::Bars::Stacked, ChartDesign::Labels::Months, 1, {{1, u"Projected"}}};

ChartContent bars(std::vector<Text> labels)
{
    ChartContent content;
    content.decimals = 0;
    content.series = {std::vector<double>(labels.size(), 40)};
    content.labels = std::move(labels);
    return content;
}

std::string slotsLabelled(const Layout& layout)
{
    std::string all;
    for (const SlotLabel& label : layout.labels) {
        if (!all.empty())
            all += ' ';
        all += std::to_string(label.slot);
    }
    return all;
}

std::string describeTitles(const Layout& layout)
{
    return lines(layout.titles,
                 [](const Title& title) { return describe(title) + (title.main ? " main" : ""); });
}

std::string describeLegend(const Layout& layout)
{
    return lines(layout.legend, [](const LegendEntry& entry) {
        return describe(entry.swatch) + " " + describe(entry.name);
    });
}

} // namespace

TEST(ChartTitles, StandBelowEachOther)
{
    ChartContent content;
    content.titles = {{1, u"Sales"}, {2, u"Product: 4711\r"}, {3, u"WH: 1"}, {4, u"nowhere"}};
    const Layout layout = laidOut(content, {}, {224, 200});
    EXPECT_EQ(describeTitles(layout), "Sales @ 12,9 200x12\n"
                                      "Product: 4711 @ 12,22.5 200x12 main\n"
                                      "WH: 1 @ 12,36 200x12\n");
    EXPECT_EQ(layout.titles[0].role, TextRole::Small);
    EXPECT_EQ(layout.titles[1].role, TextRole::Large);
    EXPECT_EQ(layout.titles[2].role, TextRole::Body);
}

TEST(ChartTitles, LeaveNoGapWhenAbsent)
{
    ChartContent content;
    content.titles = {{1, u""}, {3, u"WH: 1"}};
    EXPECT_EQ(describeTitles(laidOut(content, {}, {224, 200})), "WH: 1 @ 12,9 200x12\n");
}

TEST(ChartTitles, AreElidedNeverWrapped)
{
    ChartContent content;
    content.titles = {{2, u"Product: 4711"}};
    EXPECT_EQ(describeTitles(laidOut(content, {}, {84, 200})), "Product:~ @ 12,9 60x12 main\n");
}

TEST(ChartLegend, StandsBelowTheTitles)
{
    const Layout layout = laidOut(salesAndProjection(), projecting, {442, 251});
    EXPECT_EQ(describeLegend(layout), "12,30 9x9 Sales @ 27,28.5 30x12\n"
                                      "72,30 9x9 Projected @ 87,28.5 54x12\n");
    EXPECT_EQ(layout.plot.top, 56);
}

TEST(ChartLegend, WrapsByWidth)
{
    const double wide = 72 + 15 + 54 + 12;
    EXPECT_EQ(laidOut(salesAndProjection(), projecting, {wide, 251}).legend[1].name.box.top, 28.5);
    const Layout layout = laidOut(salesAndProjection(), projecting, {wide - 1, 251});
    EXPECT_EQ(describeLegend(layout), "12,30 9x9 Sales @ 27,28.5 30x12\n"
                                      "12,45 9x9 Projected @ 27,43.5 54x12\n");
    EXPECT_EQ(layout.plot.top, 71);
}

TEST(ChartLegend, IsAbsentWhereItTellsNothing)
{
    ChartContent content = salesAndProjection();
    content.series[1] = {0, 0};
    const Layout layout = laidOut(content, projecting, {442, 251});
    EXPECT_TRUE(layout.legend.empty());
    EXPECT_EQ(layout.plot.top, 38);
}

TEST(ChartLabels, AreThinnedToEverySecondThirdFourthSixthTwelfth)
{
    const ChartContent content = bars(std::vector<Text>(12, u"OCT98"));
    const std::pair<int, const char*> expected[] = {{36, "0 1 2 3 4 5 6 7 8 9 10 11"},
                                                    {35, "0 2 4 6 8 10"},
                                                    {18, "0 2 4 6 8 10"},
                                                    {17, "0 3 6 9"},
                                                    {12, "0 3 6 9"},
                                                    {11, "0 4 8"},
                                                    {9, "0 4 8"},
                                                    {8, "0 6"},
                                                    {6, "0 6"},
                                                    {5, "0"}};
    for (const auto& [slotWidth, labels] : expected)
        EXPECT_EQ(slotsLabelled(laidOut(content, {}, {42.0 + 12 * slotWidth, 251})), labels) << slotWidth;
    EXPECT_FALSE(laidOut(content, {}, {242, 251}).slanted);
}

TEST(ChartLabels, KeepEveryJanuaryAndRuleTheYears)
{
    std::vector<Text> labels{u"NOV", u"DEC"};
    for (const char16_t* january : {u"J98", u"J99"}) {
        labels.push_back(january);
        labels.insert(labels.end(), 11, u"FEB");
    }
    const Layout layout = laidOut(bars(labels), {}, {42 + 26 * 8, 251});
    EXPECT_EQ(describeLabels(layout), "2 J98\n5 FEB weak\n8 FEB weak\n11 FEB weak\n"
                                      "14 J99\n17 FEB weak\n20 FEB weak\n23 FEB weak\n");
    EXPECT_EQ(layout.yearRules, (std::vector<double>{30 + 2 * 8, 30 + 14 * 8}));
    EXPECT_EQ(slotsLabelled(laidOut(bars(labels), {}, {42 + 26 * 1, 251})), "2 14");
}

TEST(ChartLabels, RuleNoYearBeforeTheFirstMonth)
{
    EXPECT_TRUE(laidOut(bars({u"J98", u"FEB", u"MAR"}), {}, {442, 251}).yearRules.empty());
}

TEST(ChartLabels, RuleNoYearsWhereEveryLabelHasItsYear)
{
    EXPECT_TRUE(laidOut(bars({u"D98", u"J99", u""}), {}, {442, 251}).yearRules.empty());
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    EXPECT_TRUE(laidOut(bars({u"SMITH", u"UNIT 7"}), names, {442, 251}).yearRules.empty());
}

TEST(ChartLabels, OfNamesAreSlantedNotThinned)
{
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    const ChartContent content = bars({u"ABCDEFGHIJKLMNOP", u"B", u"C", u"D"}); // 96 wide
    EXPECT_FALSE(laidOut(content, names, {42 + 4 * 102, 251}).slanted);

    const Layout layout = laidOut(content, names, {42 + 4 * 100, 251});
    EXPECT_TRUE(layout.slanted);
    EXPECT_EQ(describeLabels(layout), "0 ABCDEFGHIJKL~\n1 B\n2 C\n3 D\n");
    EXPECT_EQ(layout.labels[0].name.box.right(), 30 + 50 + 3);
    EXPECT_EQ(layout.labels[0].name.box.top, layout.plot.bottom() + 6);
}

TEST(ChartLabels, SlantedStopBeforeTheLeftEdge)
{
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    const Layout layout = laidOut(bars(std::vector<Text>(23, u"ABCDEFGHIJKL")), names, {42 + 23 * 20, 251});
    // Its end stands at 43, so 40 / sin 45 degrees are left of it: nine characters.
    EXPECT_EQ(describeLabels(layout).substr(0, 12), "0 ABCDEFGH~\n");
    EXPECT_EQ(narrow(layout.labels[22].name.text), "ABCDEFGHIJKL");
}

} // namespace plotvue::chart
