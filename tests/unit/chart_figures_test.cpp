#include "chart/figures.h"
#include "unit/chart_fixture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace plotvue::chart {

namespace {

ChartContent newestMonthProjected()
{
    ChartContent content;
    content.titles = {{1, u"Sales"}, {2, u"Product: 4711\r"}};
    content.decimals = 0;
    content.series = {{1110, 512, 0}, {0, 388, 0}};
    content.labels = {u"SEP99", u"OCT99\r", u""};
    return content;
}

const ChartDesign projecting{ChartDesign::Bars::Stacked, ChartDesign::Labels::Months, 1, {{1, u"Projected"}}};

} // namespace

TEST(ChartFigures, ReadAPointOut)
{
    const ChartContent content = newestMonthProjected();
    const Figures figures(content, projecting);
    EXPECT_EQ(narrow(figures.sentence(0)), "SEP99: Sales 1,110");
    EXPECT_EQ(narrow(figures.sentence(1)), "OCT99: Sales 512, Projected 388");
    EXPECT_TRUE(figures.sentence(2).empty());
    EXPECT_TRUE(figures.sentence(-1).empty());
}

TEST(ChartFigures, TheEmptySlotAtTheEndIsNoPoint)
{
    ChartContent content = newestMonthProjected();
    EXPECT_EQ(Figures(content, projecting).slotCount(), 3);
    EXPECT_EQ(Figures(content, projecting).pointCount(), 2);
    content.series[0][2] = 7;
    EXPECT_EQ(Figures(content, projecting).pointCount(), 3);
    content.series[0][2] = 0;
    content.series[1][2] = 7;
    EXPECT_EQ(Figures(content, projecting).pointCount(), 3);
    content.series[1][2] = 0;
    content.labels[2] = u"NOV99";
    EXPECT_EQ(Figures(content, projecting).pointCount(), 3);
}

TEST(ChartFigures, TheSmallestChartWithAnEmptySlotAtTheEndHasOnePoint)
{
    ChartContent content;
    content.series = {{5, 0}};
    content.labels = {u"OCT99", u""};
    EXPECT_EQ(Figures(content, {}).pointCount(), 1);
    content.labels = {};
    EXPECT_EQ(Figures(content, {}).pointCount(), 2) << "without labels none is missing";
    content.series = {{0}};
    content.labels = {u""};
    EXPECT_EQ(Figures(content, {}).pointCount(), 1) << "an only slot is no end";
}

TEST(ChartFigures, ASlotBehindTheLastLabelHasNone)
{
    ChartContent content;
    content.series = {{1, 2}};
    content.labels = {u"SEP99", u"OCT99"};
    content.labels.pop_back();
    EXPECT_EQ(Figures(content, {}).label(0), u"SEP99");
    EXPECT_TRUE(Figures(content, {}).label(1).empty());
    EXPECT_EQ(narrow(Figures(content, {}).sentence(1)), "2");
}

TEST(ChartFigures, AProjectionOfNothingIsAbsent)
{
    ChartContent content = newestMonthProjected();
    EXPECT_TRUE(Figures(content, projecting).legendTellsSomething());
    content.series[1] = {0, 0, 0};
    const Figures figures(content, projecting);
    EXPECT_EQ(figures.series().size(), 1U);
    EXPECT_FALSE(figures.legendTellsSomething());
}

TEST(ChartFigures, AHiddenSeriesIsAbsentAndTakesNoColourAway)
{
    ChartContent content;
    content.series = {{1}, {2}, {3}};
    content.labels = {u"A"};
    const ChartDesign design;
    const Colour third = Figures(content, design).series()[2].colour;
    content.hidden = {1};
    const Figures figures(content, design);
    ASSERT_EQ(figures.series().size(), 2U);
    EXPECT_EQ(figures.series()[1].number, 2U);
    EXPECT_EQ(figures.series()[1].colour, third);
    EXPECT_EQ(reachOf(figures), (Range{0, 4}));
}

TEST(ChartFigures, AProjectionHasTheColourOfWhatItProjects)
{
    ChartContent content = newestMonthProjected();
    content.series.push_back({5, 5, 0});
    const Figures figures(content, projecting);
    EXPECT_EQ(figures.series()[0].colour, (Colour{0x24, 0x58, 0xB0}));
    EXPECT_EQ(figures.series()[1].colour, figures.series()[0].colour);
    EXPECT_EQ(figures.series()[2].colour, (Colour{0xDB, 0x9A, 0x35}));
    EXPECT_FALSE(figures.series()[1].ownColour);
    content.colours = {{0, {1, 2, 3}}};
    EXPECT_EQ(Figures(content, projecting).series()[1].colour, (Colour{1, 2, 3}));
    EXPECT_TRUE(Figures(content, projecting).series()[0].ownColour);
    content.colours[1] = {4, 5, 6};
    const Figures coloured(content, projecting);
    EXPECT_EQ(coloured.series()[1].colour, (Colour{4, 5, 6}));
    EXPECT_FALSE(coloured.series()[2].ownColour) << "it projects nothing";
    EXPECT_EQ(coloured.series()[2].colour, (Colour{0xDB, 0x9A, 0x35}));
}

TEST(ChartFigures, ANameIsTheLegendThenTheDesignsThenTheFirstTitle)
{
    ChartContent content;
    content.titles = {{1, u"Paid/Lost"}};
    content.series = {{1}, {2}, {3}};
    content.labels = {u"A"};
    content.legends = {{0, u"Own"}};
    ChartDesign design;
    design.legends = {{0, u"Designed"}, {1, u"Lost"}};
    const Figures figures(content, design);
    EXPECT_EQ(figures.series()[0].name, u"Own");
    EXPECT_EQ(figures.series()[1].name, u"Lost");
    EXPECT_EQ(figures.series()[2].name, u"Paid/Lost");
}

TEST(ChartFigures, TheLegendTellsSomethingFromTwoNamesOn)
{
    ChartContent content;
    content.series = {{1, 2}, {3, 4}};
    content.labels = {u"A", u"B"};
    EXPECT_FALSE(Figures(content, {}).legendTellsSomething());
    content.legends = {{0, u"Diesel"}};
    EXPECT_FALSE(Figures(content, {}).legendTellsSomething());
    content.legends[1] = u"Lubes";
    EXPECT_TRUE(Figures(content, {}).legendTellsSomething());
    content.hidden = {0};
    EXPECT_FALSE(Figures(content, {}).legendTellsSomething());
}

TEST(ChartFigures, AGroupThatTheScreenDoesNotHaveIsLeftOut)
{
    ChartContent content;
    content.series = {{1, 2}, {3, 4}, {0, 0}};
    content.labels = {u"A", u"B"};
    EXPECT_EQ(Figures(content, {}).series().size(), 3U);
    content.legends = {{0, u"Diesel"}, {1, u"Lubes"}};
    EXPECT_EQ(Figures(content, {}).series().size(), 2U);
    content.series[2][1] = 1;
    EXPECT_EQ(Figures(content, {}).series().size(), 3U);
}

TEST(ChartFigures, SeriesOfOnePointWithoutLabelsAreComponents)
{
    ChartContent content;
    content.series = {{4.25}, {-2.5}};
    content.legends = {{0, u"Volume"}, {1, u"Margin"}};
    const ChartDesign grouped{ChartDesign::Bars::Grouped};
    const Figures figures(content, grouped);
    EXPECT_TRUE(figures.components());
    EXPECT_EQ(figures.pointCount(), 2);
    EXPECT_EQ(figures.label(1), u"Margin");
    EXPECT_EQ(narrow(figures.sentence(0)), "Volume: 4.25");
    EXPECT_EQ(narrow(figures.sentence(1)), "Margin: -2.50");
    EXPECT_FALSE(figures.legendTellsSomething());
    content.labels = {u"A"};
    EXPECT_FALSE(Figures(content, grouped).components());
}

TEST(ChartFigures, ASeriesAloneHasNoneToBeComparedWith)
{
    ChartContent content;
    content.series = {{4.25}, {-2.5}};
    content.legends = {{0, u"Volume"}, {1, u"Margin"}};
    content.hidden = {1};
    const Figures figures(content, {});
    EXPECT_FALSE(figures.components());
    EXPECT_TRUE(figures.label(0).empty());
    EXPECT_EQ(narrow(figures.sentence(0)), "Volume 4.25");
}

TEST(ChartFigures, AComponentThatTheScreenDoesNotHaveTakesNoSlot)
{
    ChartContent content;
    content.series = {{4}, {0}, {3}};
    content.legends = {{0, u"Volume"}, {2, u"Margin"}};
    const Figures figures(content, {});
    EXPECT_EQ(figures.slotCount(), 2);
    EXPECT_EQ(figures.label(1), u"Margin");
    EXPECT_TRUE(figures.label(2).empty());
}

TEST(ChartFigures, WhatIsNoNumberIsBroughtIntoWhatCanBeAddedUp)
{
    const double infinity = std::numeric_limits<double>::infinity();
    ChartContent content;
    content.series = {{std::nan(""), infinity, -infinity}, {1e308, 1e308}};
    content.labels = {u"A", u"B", u"C"};
    const Figures figures(content, {});
    EXPECT_EQ(figures.value(0, 0), 0);
    EXPECT_TRUE(std::isfinite(reachOf(figures).high));
    EXPECT_TRUE(std::isfinite(reachOf(figures).low));
    EXPECT_FALSE(figures.value(1, 2));
}

TEST(ChartFigures, JoinTheTitles)
{
    ChartContent content = newestMonthProjected();
    EXPECT_EQ(narrow(titlesInOneLine(content)), "Sales, Product: 4711");
    content.titles[3] = u"WH: 1";
    EXPECT_EQ(narrow(titlesInOneLine(content)), "Sales, Product: 4711, WH: 1");
    EXPECT_TRUE(titlesInOneLine({}).empty());
}

} // namespace plotvue::chart
