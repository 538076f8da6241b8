#include "unit/chart_fixture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace plotvue::chart {

namespace {

ChartContent fourBars()
{
    ChartContent content;
    content.decimals = 0;
    content.series = {{10, 20, 30, 40}};
    content.labels = {u"A", u"B\r", u"C", u"D"};
    return content;
}

constexpr Size plot400x200{442, 251}; // with ticks of two digits and nothing above

} // namespace

TEST(ChartLayout, StandsToThePixel)
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
    ChartContent content = fourBars();
    content.series = {{11.3, 7.7, 3.1, 39.9}};
    for (const double scale : {1.0, 1.5, 2.0})
        for (const Bar& bar : laidOut(content, {}, {451, 263}, scale).bars)
            for (const double edge : {bar.box.left, bar.box.right(), bar.box.top, bar.box.bottom()})
                EXPECT_NEAR(edge * scale, std::round(edge * scale), 1e-9) << scale;
    const Layout paper = laidOut(content, {}, {451, 263}, 0);
    EXPECT_DOUBLE_EQ(paper.bars[1].box.left, 30 + 1.5 * 409 / 4 - 409 / 4. * .35);
    EXPECT_NEAR(paper.bars[0].box.height, 11.3 / 40 * 212, 1e-9);
    EXPECT_EQ(laidOut(content, {}, {451, 263}, 1.5).hairline, 1 / 1.5);
    EXPECT_EQ(laidOut(content, {}, {451, 263}, 2).hairline, 1);
}

TEST(ChartLayout, StacksNegativePartsDownwards)
{
    ChartContent content;
    content.decimals = 0;
    content.series = {{10, -10}, {30, -20}};
    content.labels = {u"A", u"B"};
    const Layout layout = laidOut(content, {}, {448, 260});
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

TEST(ChartLayout, GroupsSideBySide)
{
    ChartContent content;
    content.decimals = 0;
    content.series = {{10, 20}, {30, 40}};
    content.labels = {u"A", u"B"};
    const Layout layout = laidOut(content, {ChartDesign::Bars::Grouped}, plot400x200);
    EXPECT_EQ(describeBars(layout), "0/0 76,174 53x50 up end\n"
                                    "0/1 130,74 53x150 up end\n"
                                    "1/0 276,124 53x100 up end\n"
                                    "1/1 330,24 53x200 up end\n");
    EXPECT_EQ(layout.values.size(), 4U);
    content.hidden = {0};
    EXPECT_EQ(describeBars(laidOut(content, {ChartDesign::Bars::Grouped}, plot400x200)),
              "0/0 76,74 107x150 up end\n"
              "1/0 276,24 107x200 up end\n");
}

TEST(ChartLayout, PutsTheProjectionOnTheNewestMonth)
{
    ChartContent content = fourBars();
    content.labels.back() = u"";
    content.series = {{10, 20, 20, 0}, {0, 0, 20, 0}};
    const Layout layout = laidOut(content, {{}, {}, 1, {}}, plot400x200);
    EXPECT_EQ(describeBars(layout), "0/0 45,174 70x50 up end\n"
                                    "1/0 145,124 70x100 up end\n"
                                    "2/0 245,124 70x100 up\n"
                                    "2/1 245,24 70x100 up end\n");
    EXPECT_EQ(describeValues(layout), "10 @ 74,160.5 12x12\n"
                                      "20 @ 174,110.5 12x12\n"
                                      "40 @ 274,10.5 12x12\n");
}

TEST(ChartLayout, LeavesAGapForTheEmptySlotAtTheEnd)
{
    ChartContent content = fourBars();
    content.labels.back() = u"\r";
    content.series = {{10, 0, 40, 0}};
    const Layout layout = laidOut(content, {}, plot400x200);
    EXPECT_EQ(layout.slotWidth, 100);
    EXPECT_EQ(describeValues(layout), "10 @ 74,160.5 12x12\n"
                                      "0 @ 177,210.5 6x12\n"
                                      "40 @ 274,10.5 12x12\n");
    EXPECT_EQ(layout.labels.size(), 3U);
    EXPECT_EQ(layout.slotAt(330, 100), -1);
}

TEST(ChartLayout, TheWholeSlotIsTheTarget)
{
    const Layout layout = laidOut(fourBars(), {}, plot400x200);
    EXPECT_EQ(layout.slotAt(29, 100), -1);
    EXPECT_EQ(layout.slotAt(30, 100), 0);
    EXPECT_EQ(layout.slotAt(129.9, 240), 0) << "on its label";
    EXPECT_EQ(layout.slotAt(130, 24), 1);
    EXPECT_EQ(layout.slotAt(429, 223), 3);
    EXPECT_EQ(layout.slotAt(430, 223), -1);
    EXPECT_EQ(layout.slotAt(200, 5), -1) << "on the titles";
    EXPECT_EQ(layout.slotAt(200, 251), -1);
}

TEST(ChartLayout, WritesFiguresOnlyWhereAllFit)
{
    ChartContent content = fourBars();
    content.series = {{10, 20, 30, 123456789}};
    const double left = 12 + 11 * 6 + 6; // "150,000,000"
    EXPECT_EQ(laidOut(content, {}, {left + 4 * 70 + 12, 251}).values.size(), 4U);
    EXPECT_TRUE(laidOut(content, {}, {left + 4 * 69 + 12, 251}).values.empty());
}

TEST(ChartLayout, KeepsAForcedAxisAndClipsWhatReachesBeyond)
{
    ChartContent content = fourBars();
    content.axisMax = 20;
    const Layout layout = laidOut(content, {}, plot400x200);
    EXPECT_EQ(layout.scale.max, 20);
    EXPECT_EQ(describe(layout.bars[0].box), "45,124 70x100");
    EXPECT_EQ(describe(layout.bars[3].box), "345,24 70x200");
    content.axisMax = 0;
    EXPECT_EQ(laidOut(content, {}, plot400x200).scale.max, 40);
    content.axisMax = 80;
    content.axisMin = 20;
    const Layout without = laidOut(content, {}, plot400x200);
    EXPECT_FALSE(without.zero);
    EXPECT_EQ(without.bars[3].box.bottom(), 224);
}

TEST(ChartLayout, DrawsComponentsAsABarEachWithItsLegendBelow)
{
    ChartContent content;
    content.decimals = 0;
    content.series = {{40}, {-40}};
    content.legends = {{0, u"Volume"}, {1, u"Margin"}};
    const Layout layout = laidOut(content, {ChartDesign::Bars::Grouped}, {448, 260});
    EXPECT_EQ(describeBars(layout), "0/0 82,24 108x100 up end\n"
                                    "1/1 282,124 108x100 down end\n");
    EXPECT_EQ(describeValues(layout), "40 @ 130,10.5 12x12\n"
                                      "-40 @ 327,225.5 18x12\n");
    EXPECT_EQ(describeLabels(layout), "0 Volume\n1 Margin\n");
    EXPECT_EQ(layout.labels[0].name.box.top, 239);
    EXPECT_TRUE(layout.legend.empty());
}

TEST(ChartLayout, WithoutDataThereAreOnlyTitles)
{
    ChartContent content;
    content.titles = {{2, u"No figures"}};
    const Layout layout = laidOut(content, {}, plot400x200);
    EXPECT_EQ(layout.titles.size(), 1U);
    EXPECT_TRUE(layout.ticks.empty());
    EXPECT_EQ(layout.slotAt(100, 100), -1);
    EXPECT_TRUE(laidOut({}, {}, plot400x200).titles.empty());
}

TEST(ChartLayout, StaysFiniteOnAnyPaperWithAnyFigures)
{
    ChartContent content = fourBars();
    const double infinity = std::numeric_limits<double>::infinity();
    content.series = {{infinity, -infinity, std::nan(""), 1e308}, {1e308, -1e308, 1e308, 1e308}};
    for (const Size paper : {Size{0, 0}, Size{1, 1}, Size{50, 400}, Size{442, 251}})
        for (const auto bars : {ChartDesign::Bars::Stacked, ChartDesign::Bars::Grouped}) {
            const Layout layout = laidOut(content, {bars}, paper);
            EXPECT_GT(layout.plot.width, 0);
            EXPECT_GT(layout.plot.height, 0);
            for (const Bar& bar : layout.bars)
                for (const double length : {bar.box.left, bar.box.top, bar.box.width, bar.box.height})
                    EXPECT_TRUE(std::isfinite(length));
        }
}

} // namespace plotvue::chart
