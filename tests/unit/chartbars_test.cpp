#include "unit/chartfixture.h"

#include <gtest/gtest.h>

namespace plotvue {

namespace {

Chart twoSlots(std::vector<std::vector<double>> series)
{
    Chart chart;
    chart.decimals = 0;
    chart.series = std::move(series);
    chart.labels = {u"A", u"B"};
    return chart;
}

} // namespace

TEST(ChartBars, StackNegativeFiguresDownwards)
{
    const Chart chart = twoSlots({{10, -10}, {30, -20}});
    const Layout layout = laidOut(chart, {}, {448, 260});
    EXPECT_EQ(describe(layout.plot), "36,24 400x200");
    EXPECT_EQ(describeBars(layout), "0/0 82,99 108x25 up\n"
                                    "0/1 82,24 108x75 up end\n"
                                    "1/0 282,124 108x25 down\n"
                                    "1/1 282,149 108x50 down end\n");
    EXPECT_EQ(describeValues(layout), "40 @ 130,10.5 12x12\n"
                                      "-30 @ 327,200.5 18x12\n");
    EXPECT_EQ(layout.zero, 124);
    EXPECT_EQ(layout.labels[0].name.box.top, 239) << "room for figures below the bars";
}

TEST(ChartBars, OfAGroupAreSideBySide)
{
    Chart chart = twoSlots({{10, 20}, {30, 40}});
    const Layout layout = laidOut(chart, {ChartDesign::Bars::Grouped}, plot400x200);
    EXPECT_EQ(describeBars(layout), "0/0 76,174 53x50 up end\n"
                                    "0/1 130,74 53x150 up end\n"
                                    "1/0 276,124 53x100 up end\n"
                                    "1/1 330,24 53x200 up end\n");
    EXPECT_EQ(describeValues(layout), "10 @ 96.5,160.5 12x12\n"
                                      "30 @ 150.5,60.5 12x12\n"
                                      "20 @ 296.5,110.5 12x12\n"
                                      "40 @ 350.5,10.5 12x12\n");
    chart.hidden = {0};
    EXPECT_EQ(describeBars(laidOut(chart, {ChartDesign::Bars::Grouped}, plot400x200)),
              "0/0 76,74 107x150 up end\n"
              "1/0 276,24 107x200 up end\n");
}

TEST(ChartBars, HaveAGapInGroupsIfWiderThanSeven)
{
    const Chart chart = twoSlots({{10, 20}, {30, 40}});
    // The two bars share 82 % of the slot: 7 each in the first, 8 each in the second, of which 1 is the gap.
    for (const auto& [slotWidth, gap] : {std::pair(18, 0), std::pair(20, 1)}) {
        const auto bars = laidOut(chart, {ChartDesign::Bars::Grouped}, {42.0 + 2 * slotWidth, 251}).bars;
        EXPECT_EQ(bars[0].box.width, 7);
        EXPECT_EQ(bars[1].box.left - bars[0].box.right(), gap);
    }
}

TEST(ChartBars, AreWiderInChartsOfUpToThreeSlots)
{
    Chart chart = fourBars();
    EXPECT_EQ(laidOut(chart, {}, {42 + 4 * 200, 251}).bars[0].box.width, 6 * 12);
    chart.series[0].pop_back();
    chart.labels.pop_back();
    EXPECT_EQ(laidOut(chart, {}, {42 + 3 * 200, 251}).bars[0].box.width, 9 * 12);
}

TEST(ChartBars, OfZeroInAGroupHaveTheirFigureAboveTheZeroLine)
{
    const Chart chart = twoSlots({{0, 20}, {30, 40}});
    const Layout layout = laidOut(chart, {ChartDesign::Bars::Grouped}, plot400x200);
    EXPECT_EQ(describe(layout.values[0].figure), "0 @ 99.5,210.5 6x12");
}

TEST(ChartBars, OfLossesHangFromTheTop)
{
    Chart chart = fourBars();
    chart.series = {{-10, -20, -30, -40}};
    const Layout layout = laidOut(chart, {}, plot400x200);
    EXPECT_EQ(layout.zero, layout.plot.top);
    EXPECT_EQ(layout.bars[0].box.top, layout.plot.top);
}

TEST(ChartBars, OfTheNewestMonthHaveTheProjectionOnTop)
{
    Chart chart = fourBars();
    chart.labels.back() = u"";
    chart.series = {{10, 20, 20, 0}, {0, 0, 20, 0}};
    const Layout layout = laidOut(chart, {{}, {}, 1, {}}, plot400x200);
    EXPECT_EQ(describeBars(layout), "0/0 45,174 70x50 up end\n"
                                    "1/0 145,124 70x100 up end\n"
                                    "2/0 245,124 70x100 up\n"
                                    "2/1 245,24 70x100 up end\n");
    EXPECT_EQ(describeValues(layout), "10 @ 74,160.5 12x12\n"
                                      "20 @ 174,110.5 12x12\n"
                                      "40 @ 274,10.5 12x12\n");
}

TEST(ChartBars, HaveFiguresOnlyIfAllFit)
{
    Chart chart = fourBars();
    chart.series = {{10, 20, 30, 123456789}};
    const double left = 12 + 11 * 6 + 6; // of the plot: the margin, the tick "150,000,000" and half a line
    EXPECT_EQ(laidOut(chart, {}, {left + 4 * 70 + 12, 251}).values.size(), 4U);
    EXPECT_EQ(laidOut(chart, {}, {left + 4 * 59 + 12, 251}).values.size(), 4U);
    EXPECT_TRUE(laidOut(chart, {}, {left + 4 * 58 + 12, 251}).values.empty());
}

TEST(ChartBars, HaveSmallerFiguresIfTheyDoNotFitOtherwise)
{
    struct LowTiny : SixByTwelve {
        double height(TextRole role) const override { return role == TextRole::Tiny ? 8 : 12; }
    };
    Chart chart = fourBars();
    chart.series = {{-10, 20, 30, 123456789}};
    const double left = 12 + 11 * 6 + 6;
    const auto drawn = [&](double slot) {
        return layoutChart(PlotData(chart), {left + 4 * slot + 12, 251}, LowTiny(), 1);
    };
    const Layout small = drawn(70), tiny = drawn(69), none = drawn(58);
    ASSERT_EQ(small.values.size(), 4U);
    ASSERT_EQ(tiny.values.size(), 4U);
    EXPECT_EQ(small.valueRole, TextRole::Small);
    EXPECT_EQ(tiny.valueRole, TextRole::Tiny);
    EXPECT_EQ(describe(small.values[3].figure), "123,456,789 @ 296.5,35.5 66x12");
    EXPECT_EQ(describe(tiny.values[3].figure), "123,456,789 @ 298.5,39.5 55x8");
    EXPECT_EQ(tiny.plot.bottom(), small.plot.bottom()) << "room for figures below the bars";
    EXPECT_EQ(none.plot.bottom(), small.plot.bottom() + 9);
}

TEST(ChartBars, OfComponentsHaveTheirNamesBelow)
{
    Chart chart;
    chart.decimals = 0;
    chart.series = {{40}, {-40}};
    chart.legends = {{0, u"Volume"}, {1, u"Margin"}};
    const Layout layout = laidOut(chart, {ChartDesign::Bars::Grouped}, {448, 260});
    EXPECT_EQ(describeBars(layout), "0/0 82,24 108x100 up end\n"
                                    "1/1 282,124 108x100 down end\n");
    EXPECT_EQ(describeValues(layout), "40 @ 130,10.5 12x12\n"
                                      "-40 @ 327,225.5 18x12\n");
    EXPECT_EQ(describeLabels(layout), "0 Volume\n1 Margin\n");
    EXPECT_EQ(layout.labels[0].name.box.top, 239);
    EXPECT_TRUE(layout.legend.empty());
}

TEST(ChartBars, OfAComponentOfZeroAreFlat)
{
    Chart chart;
    chart.decimals = 0;
    chart.series = {{0}, {-20}};
    chart.legends = {{0, u"Volume"}, {1, u"Margin"}};
    chart.axisMax = 0;
    chart.axisMin = -20;
    const Layout layout =
        laidOut(chart, {ChartDesign::Bars::Grouped, ChartDesign::Labels::Names}, {448, 260});
    ASSERT_EQ(layout.bars.size(), 2U);
    EXPECT_EQ(layout.bars[0].box.bottom(), layout.zero);
    EXPECT_EQ(layout.bars[0].box.height, 2);
    EXPECT_GT(layout.bars[0].box.width, 20);
    EXPECT_EQ(layout.bars[1].box.top, layout.zero);
    const ChartDesign design{ChartDesign::Bars::Grouped, ChartDesign::Labels::Names};
    EXPECT_EQ(laidOut(chart, design, {448, 260}, 1.5).bars[0].box.height, 2 / 1.5)
        << "two pixels of the screen";

    chart.labels = {u"A"}; // with a label, the two series are no components
    EXPECT_EQ(laidOut(chart, {}, {448, 260}).bars.size(), 1U);
}

} // namespace plotvue
