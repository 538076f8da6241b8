#include "chart/figures.h"
#include "unit/chart_fixture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace plotvue::chart {

namespace {

Chart newestMonthProjected()
{
    Chart chart;
    chart.design = {.projection = 1, .legends = {{1, u"Projected"}}};
    chart.titles = {{1, u"Sales"}, {2, u"Product: 4711\r"}};
    chart.decimals = 0;
    chart.series = {{1110, 512, 0}, {0, 388, 0}};
    chart.labels = {u"SEP99", u"OCT99\r", u""};
    return chart;
}

} // namespace

TEST(ChartFigures, ReadAPointOut)
{
    const Chart chart = newestMonthProjected();
    const Figures figures(chart);
    EXPECT_EQ(narrow(figures.sentence(0)), "SEP99: Sales 1,110");
    EXPECT_EQ(narrow(figures.sentence(1)), "OCT99: Sales 512, Projected 388");
    EXPECT_TRUE(figures.sentence(2).empty());
    EXPECT_TRUE(figures.sentence(-1).empty());
}

TEST(ChartFigures, TheEmptySlotAtTheEndIsNoPoint)
{
    Chart chart = newestMonthProjected();
    EXPECT_EQ(Figures(chart).slotCount(), 3);
    EXPECT_EQ(Figures(chart).pointCount(), 2);
    chart.series[0][2] = 7;
    EXPECT_EQ(Figures(chart).pointCount(), 3);
    chart.series[0][2] = 0;
    chart.series[1][2] = 7;
    EXPECT_EQ(Figures(chart).pointCount(), 3);
    chart.series[1][2] = 0;
    chart.labels[2] = u"NOV99";
    EXPECT_EQ(Figures(chart).pointCount(), 3);
}

TEST(ChartFigures, TheSmallestChartWithAnEmptySlotAtTheEndHasOnePoint)
{
    Chart chart;
    chart.series = {{5, 0}};
    chart.labels = {u"OCT99", u""};
    EXPECT_EQ(Figures(chart).pointCount(), 1);
    chart.labels = {};
    EXPECT_EQ(Figures(chart).pointCount(), 2) << "without labels none is missing";
    chart.series = {{0}};
    chart.labels = {u""};
    EXPECT_EQ(Figures(chart).pointCount(), 1) << "an only slot is no end";
}

TEST(ChartFigures, ASlotBehindTheLastLabelHasNone)
{
    Chart chart;
    chart.series = {{1, 2}};
    chart.labels = {u"SEP99", u"OCT99"};
    chart.labels.pop_back();
    EXPECT_EQ(Figures(chart).label(0), u"SEP99");
    EXPECT_TRUE(Figures(chart).label(1).empty());
    EXPECT_EQ(narrow(Figures(chart).sentence(1)), "2");
}

TEST(ChartFigures, AProjectionOfNothingIsAbsent)
{
    Chart chart = newestMonthProjected();
    EXPECT_TRUE(Figures(chart).legendTellsSomething());
    chart.series[1] = {0, 0, 0};
    const Figures figures(chart);
    EXPECT_EQ(figures.series().size(), 1U);
    EXPECT_FALSE(figures.legendTellsSomething());
}

TEST(ChartFigures, AHiddenSeriesIsAbsentAndTakesNoColourAway)
{
    Chart chart;
    chart.series = {{1}, {2}, {3}};
    chart.labels = {u"A"};
    const Colour third = Figures(chart).series()[2].colour;
    chart.hidden = {1};
    const Figures figures(chart);
    ASSERT_EQ(figures.series().size(), 2U);
    EXPECT_EQ(figures.series()[1].number, 2U);
    EXPECT_EQ(figures.series()[1].colour, third);
    EXPECT_EQ(reachOf(figures), (Range{0, 4}));
}

TEST(ChartFigures, AProjectionHasTheColourOfWhatItProjects)
{
    Chart chart = newestMonthProjected();
    chart.series.push_back({5, 5, 0});
    const Figures figures(chart);
    EXPECT_EQ(figures.series()[0].colour, (Colour{0x24, 0x58, 0xB0}));
    EXPECT_EQ(figures.series()[1].colour, figures.series()[0].colour);
    EXPECT_EQ(figures.series()[2].colour, (Colour{0xDB, 0x9A, 0x35}));
    EXPECT_FALSE(figures.series()[1].ownColour);
    chart.colours = {{0, {1, 2, 3}}};
    EXPECT_EQ(Figures(chart).series()[1].colour, (Colour{1, 2, 3}));
    EXPECT_TRUE(Figures(chart).series()[0].ownColour);
    chart.colours[1] = {4, 5, 6};
    const Figures coloured(chart);
    EXPECT_EQ(coloured.series()[1].colour, (Colour{4, 5, 6}));
    EXPECT_FALSE(coloured.series()[2].ownColour) << "it projects nothing";
    EXPECT_EQ(coloured.series()[2].colour, (Colour{0xDB, 0x9A, 0x35}));
}

TEST(ChartFigures, ANameIsTheLegendThenTheDesignsThenTheFirstTitle)
{
    Chart chart;
    chart.titles = {{1, u"Paid/Lost"}};
    chart.series = {{1}, {2}, {3}};
    chart.labels = {u"A"};
    chart.legends = {{0, u"Own"}};
    chart.design.legends = {{0, u"Designed"}, {1, u"Lost"}};
    const Figures figures(chart);
    EXPECT_EQ(figures.series()[0].name, u"Own");
    EXPECT_EQ(figures.series()[1].name, u"Lost");
    EXPECT_EQ(figures.series()[2].name, u"Paid/Lost");
}

TEST(ChartFigures, TheLegendTellsSomethingFromTwoNamesOn)
{
    Chart chart;
    chart.series = {{1, 2}, {3, 4}};
    chart.labels = {u"A", u"B"};
    EXPECT_FALSE(Figures(chart).legendTellsSomething());
    chart.legends = {{0, u"Diesel"}};
    EXPECT_FALSE(Figures(chart).legendTellsSomething());
    chart.legends[1] = u"Lubes";
    EXPECT_TRUE(Figures(chart).legendTellsSomething());
    chart.hidden = {0};
    EXPECT_FALSE(Figures(chart).legendTellsSomething());
}

TEST(ChartFigures, AGroupThatTheScreenDoesNotHaveIsLeftOut)
{
    Chart chart;
    chart.series = {{1, 2}, {3, 4}, {0, 0}};
    chart.labels = {u"A", u"B"};
    EXPECT_EQ(Figures(chart).series().size(), 3U);
    chart.legends = {{0, u"Diesel"}, {1, u"Lubes"}};
    EXPECT_EQ(Figures(chart).series().size(), 2U);
    chart.series[2][1] = 1;
    EXPECT_EQ(Figures(chart).series().size(), 3U);
}

TEST(ChartFigures, SeriesOfOnePointWithoutLabelsAreComponents)
{
    Chart chart;
    chart.series = {{4.25}, {-2.5}};
    chart.legends = {{0, u"Volume"}, {1, u"Margin"}};
    chart.design.bars = ChartDesign::Bars::Grouped;
    const Figures figures(chart);
    EXPECT_TRUE(figures.components());
    EXPECT_EQ(figures.pointCount(), 2);
    EXPECT_EQ(figures.label(1), u"Margin");
    EXPECT_EQ(narrow(figures.sentence(0)), "Volume: 4.25");
    EXPECT_EQ(narrow(figures.sentence(1)), "Margin: -2.50");
    EXPECT_FALSE(figures.legendTellsSomething());
    chart.labels = {u"A"};
    EXPECT_FALSE(Figures(chart).components());
}

TEST(ChartFigures, ASeriesAloneHasNoneToBeComparedWith)
{
    Chart chart;
    chart.series = {{4.25}, {-2.5}};
    chart.legends = {{0, u"Volume"}, {1, u"Margin"}};
    chart.hidden = {1};
    const Figures figures(chart);
    EXPECT_FALSE(figures.components());
    EXPECT_TRUE(figures.label(0).empty());
    EXPECT_EQ(narrow(figures.sentence(0)), "Volume 4.25");
}

TEST(ChartFigures, AComponentThatTheScreenDoesNotHaveTakesNoSlot)
{
    Chart chart;
    chart.series = {{4}, {0}, {3}};
    chart.legends = {{0, u"Volume"}, {2, u"Margin"}};
    const Figures figures(chart);
    EXPECT_EQ(figures.slotCount(), 2);
    EXPECT_EQ(figures.label(1), u"Margin");
    EXPECT_TRUE(figures.label(2).empty());
}

TEST(ChartFigures, WhatIsNoNumberIsBroughtIntoWhatCanBeAddedUp)
{
    const double infinity = std::numeric_limits<double>::infinity();
    Chart chart;
    chart.series = {{std::nan(""), infinity, -infinity}, {1e308, 1e308}};
    chart.labels = {u"A", u"B", u"C"};
    const Figures figures(chart);
    EXPECT_EQ(figures.value(0, 0), 0);
    EXPECT_TRUE(std::isfinite(reachOf(figures).high));
    EXPECT_TRUE(std::isfinite(reachOf(figures).low));
    EXPECT_FALSE(figures.value(1, 2));
}

TEST(ChartFigures, JoinTheTitles)
{
    Chart chart = newestMonthProjected();
    EXPECT_EQ(narrow(titlesInOneLine(chart)), "Sales, Product: 4711");
    chart.titles[3] = u"WH: 1";
    EXPECT_EQ(narrow(titlesInOneLine(chart)), "Sales, Product: 4711, WH: 1");
    EXPECT_TRUE(titlesInOneLine({}).empty());
}

} // namespace plotvue::chart
