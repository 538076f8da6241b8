#include "unit/chartfixture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace plotvue {

TEST(ChartLayout, IsExactToThePixel)
{
    const Layout layout = laidOut(fourBars(), {}, plot400x200);
    EXPECT_EQ(describe(layout.plot), "30,24 400x200");
    EXPECT_EQ(describeBars(layout), "0/0 45,174 70x50 up end\n"
                                    "1/0 145,124 70x100 up end\n"
                                    "2/0 245,74 70x150 up end\n"
                                    "3/0 345,24 70x200 up end\n");
    EXPECT_EQ(describeValues(layout), "10 @ 74,160.5 12x12\n"
                                      "20 @ 174,110.5 12x12\n"
                                      "30 @ 274,60.5 12x12\n"
                                      "40 @ 374,10.5 12x12\n");
    EXPECT_EQ(lines(layout.ticks, [](const Tick& tick) { return describe(tick.figure); }),
              "0 @ 18,218 6x12\n"
              "10 @ 12,168 12x12\n"
              "20 @ 12,118 12x12\n"
              "30 @ 12,68 12x12\n"
              "40 @ 12,18 12x12\n");
    EXPECT_EQ(describe(layout.labels[1].name), "B @ 177,230 6x12");
    EXPECT_EQ(layout.zero, 224);
    EXPECT_TRUE(layout.legend.empty());
    EXPECT_TRUE(layout.yearRules.empty());
}

TEST(ChartLayout, SnapsToDevicePixelsOnTheScreenOnly)
{
    Chart chart = fourBars();
    chart.series = {{11.3, 7.7, 3.1, 39.9}};
    for (const double scale : {1.0, 1.5, 2.0})
        for (const Bar& bar : laidOut(chart, {}, {451, 263}, scale).bars)
            for (const double edge : {bar.box.left, bar.box.right(), bar.box.top, bar.box.bottom()})
                EXPECT_NEAR(edge * scale, std::round(edge * scale), 1e-9) << scale;
    // A bar is 70 % of a slot wide, 71.575, rounded down to whole device pixels.
    EXPECT_EQ(laidOut(chart, {}, {451, 263}, 1).bars[0].box.width, 71);
    EXPECT_EQ(laidOut(chart, {}, {451, 263}, 2).bars[0].box.width, 71.5);
    EXPECT_EQ(describe(laidOut(fourBars(), {}, plot400x200, 2).plot), "30,24 400x200");
    const Layout paper = laidOut(chart, {}, {451, 263}, 0);
    EXPECT_DOUBLE_EQ(paper.bars[1].box.left, 30 + 1.5 * 409 / 4 - 409 / 4. * .35);
    EXPECT_NEAR(paper.bars[0].box.height, 11.3 / 40 * 212, 1e-9);
    EXPECT_EQ(laidOut(chart, {}, {451, 263}, 1.5).hairline, 1 / 1.5);
    EXPECT_EQ(laidOut(chart, {}, {451, 263}, 2).hairline, 1);
}

TEST(ChartLayout, AStepIsAtLeastThreeAndAHalfLinesHigh)
{
    // The heading and the margins leave 16 lines. The labels take two; the other 14 are just enough for four
    // steps.
    EXPECT_EQ(laidOut(fourBars(), {}, {442, 225}).ticks.size(), 5U);
    EXPECT_EQ(laidOut(fourBars(), {}, {442, 224}).ticks.size(), 3U);
}

TEST(ChartLayout, TheAxisTakesAtMostHalfOfTheWidth)
{
    Chart chart = fourBars();
    chart.series = {{10, 20, 30, 123456789}};
    // Between the margins, the chart is 76 wide. The axis takes 38, and half a line separates it from the
    // bars.
    EXPECT_EQ(describe(laidOut(chart, {}, {100, 251}).plot), "56,24 32x200");
}

TEST(ChartLayout, LeavesAGapForTheEmptySlotAtTheEnd)
{
    Chart chart = fourBars();
    chart.labels.back() = u"\r";
    chart.series = {{10, 0, 40, 0}};
    const Layout layout = laidOut(chart, {}, plot400x200);
    EXPECT_EQ(layout.slotWidth, 100);
    EXPECT_EQ(describeValues(layout), "10 @ 74,160.5 12x12\n"
                                      "0 @ 177,210.5 6x12\n"
                                      "40 @ 274,10.5 12x12\n");
    EXPECT_EQ(layout.labels.size(), 3U);
    EXPECT_EQ(layout.slotAt(330, 100), -1);
}

TEST(ChartLayout, FindsAPointAnywhereInItsSlot)
{
    const Layout layout = laidOut(fourBars(), {}, plot400x200);
    EXPECT_EQ(layout.slotAt(29, 100), -1);
    EXPECT_EQ(layout.slotAt(30, 100), 0);
    EXPECT_EQ(layout.slotAt(129.9, 240), 0) << "on its label";
    EXPECT_EQ(layout.slotAt(130, 24), 1);
    EXPECT_EQ(layout.slotAt(130, 12), 1) << "on the figure of its bar";
    EXPECT_EQ(layout.slotAt(429, 223), 3);
    EXPECT_EQ(layout.slotAt(430, 223), -1);
    EXPECT_EQ(layout.slotAt(200, 5), -1) << "on the titles";
    EXPECT_EQ(layout.slotAt(200, 251), -1);
}

TEST(ChartLayout, KeepsAForcedAxisEndUnlessItCutsABar)
{
    Chart chart = fourBars();
    chart.axisMax = 80;
    const Layout kept = laidOut(chart, {}, plot400x200);
    EXPECT_EQ(kept.scale.max, 80);
    EXPECT_EQ(describe(kept.bars[3].box), "345,124 70x100");
    for (const double tooLow : {20, 0}) {
        chart.axisMax = tooLow;
        const Layout layout = laidOut(chart, {}, plot400x200);
        EXPECT_EQ(layout.scale.max, 40) << tooLow;
        EXPECT_EQ(describe(layout.bars[3].box), "345,24 70x200") << tooLow;
    }
}

TEST(ChartLayout, ANegativeFigureHidesNoOtherPartOfItsStack)
{
    Chart chart = fourBars();
    chart.series = {{10600, 0, 0, 0}, {-6000, 0, 0, 0}};
    chart.axisMax = 4600; // the total of the stack
    const Layout layout = laidOut(chart, {}, plot400x200);
    EXPECT_GE(layout.scale.max, 10600);
    EXPECT_LE(layout.scale.min, -6000);
    ASSERT_EQ(layout.bars.size(), 2U);
    EXPECT_EQ(layout.bars[0].box.top, layout.snapped(layout.y(10600)));
    EXPECT_EQ(layout.bars[1].box.bottom(), layout.snapped(layout.y(-6000)));
}

TEST(ChartLayout, HasOnlyTitlesWithoutData)
{
    Chart chart;
    chart.titles = {{2, u"No figures"}};
    const Layout layout = laidOut(chart, {}, plot400x200);
    EXPECT_EQ(layout.titles.size(), 1U);
    EXPECT_TRUE(layout.ticks.empty());
    EXPECT_EQ(layout.slotAt(100, 100), -1);
    EXPECT_TRUE(laidOut({}, {}, plot400x200).titles.empty());
}

TEST(ChartLayout, IsFiniteOnAnyPaperWithAnyFigures)
{
    Chart chart = fourBars();
    const double infinity = std::numeric_limits<double>::infinity();
    chart.series = {{infinity, -infinity, std::nan(""), 1e308}, {1e308, -1e308, 1e308, 1e308}};
    for (const Size paper : {Size{0, 0}, Size{1, 1}, Size{50, 400}, Size{442, 251}})
        for (const auto bars : {ChartDesign::Bars::Stacked, ChartDesign::Bars::Grouped}) {
            const Layout layout = laidOut(chart, {bars}, paper);
            EXPECT_GT(layout.plot.width, 0);
            EXPECT_GT(layout.plot.height, 0);
            for (const Bar& bar : layout.bars)
                for (const double length : {bar.box.left, bar.box.top, bar.box.width, bar.box.height})
                    EXPECT_TRUE(std::isfinite(length));
        }
}

} // namespace plotvue
