#include "chart/plotdata.h"
#include "unit/chartfixture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace plotvue {

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

TEST(ChartPlotData, ReadsAPointOut)
{
    const Chart chart = newestMonthProjected();
    const PlotData data(chart);
    EXPECT_EQ(narrow(data.sentence(0)), "SEP99: Sales 1,110");
    EXPECT_EQ(narrow(data.sentence(1)), "OCT99: Sales 512, Projected 388");
    EXPECT_TRUE(data.sentence(2).empty());
    EXPECT_TRUE(data.sentence(-1).empty());
}

TEST(ChartPlotData, ReadsTheFullLabelOutAndKeepsTheLabel)
{
    Chart chart = newestMonthProjected();
    chart.labels = {u"S99", u"O99", u""};
    EXPECT_EQ(narrow(PlotData(chart).sentence(0)), "S99: Sales 1,110") << "without full labels";
    chart.fullLabels = {u"SEP99", u"OCT99\r"};
    const PlotData data(chart);
    EXPECT_EQ(narrow(data.sentence(0)), "SEP99: Sales 1,110");
    EXPECT_EQ(narrow(data.sentence(1)), "OCT99: Sales 512, Projected 388");
    EXPECT_EQ(data.label(1), u"O99");
    EXPECT_EQ(data.fullLabel(1), u"OCT99\r");
    for (const int slot : {-1, 2, 3})
        EXPECT_TRUE(data.fullLabel(slot).empty()) << slot;
}

TEST(ChartPlotData, NewDataReplacesTheFullLabels)
{
    ChartArrayData months;
    months.AddArray(std::vector{1.0});
    months.AddArray(std::vector<Text>{u"J98"});
    months.setFullLabels({u"JUL98"});
    Chart chart;
    chart.SetChartData(months);
    EXPECT_EQ(PlotData(chart).fullLabel(0), u"JUL98");
    months = {};
    months.AddArray(std::vector{1.0});
    months.AddArray(std::vector<Text>{u"02_01"});
    chart.SetChartData(months);
    EXPECT_EQ(PlotData(chart).fullLabel(0), u"02_01");
}

TEST(ChartPlotData, AnEmptySlotAtTheEndIsNotAPoint)
{
    Chart chart = newestMonthProjected();
    EXPECT_EQ(PlotData(chart).slotCount(), 3);
    EXPECT_EQ(PlotData(chart).pointCount(), 2);
    chart.series[0][2] = 7;
    EXPECT_EQ(PlotData(chart).pointCount(), 3);
    chart.series[0][2] = 0;
    chart.series[1][2] = 7;
    EXPECT_EQ(PlotData(chart).pointCount(), 3);
    chart.series[1][2] = 0;
    chart.labels[2] = u"NOV99";
    EXPECT_EQ(PlotData(chart).pointCount(), 3);
}

TEST(ChartPlotData, TheSmallestChartWithAnEmptySlotAtTheEndHasOnePoint)
{
    Chart chart;
    chart.series = {{5, 0}};
    chart.labels = {u"OCT99", u""};
    EXPECT_EQ(PlotData(chart).pointCount(), 1);
    chart.labels = {};
    EXPECT_EQ(PlotData(chart).pointCount(), 2) << "without labels no slot is left out";
    chart.series = {{0}};
    chart.labels = {u""};
    EXPECT_EQ(PlotData(chart).pointCount(), 1) << "a single slot is never left out";
}

TEST(ChartPlotData, ASlotAfterTheLastLabelHasNoLabel)
{
    Chart chart;
    chart.series = {{1, 2}};
    chart.labels = {u"SEP99", u"OCT99"};
    chart.labels.pop_back();
    EXPECT_EQ(PlotData(chart).label(0), u"SEP99");
    EXPECT_TRUE(PlotData(chart).label(1).empty());
    EXPECT_EQ(narrow(PlotData(chart).sentence(1)), "2");
}

TEST(ChartPlotData, AProjectionOfZerosIsLeftOut)
{
    Chart chart = newestMonthProjected();
    EXPECT_TRUE(PlotData(chart).legendTellsSomething());
    chart.series[1] = {0, 0, 0};
    const PlotData data(chart);
    EXPECT_EQ(data.series().size(), 1U);
    EXPECT_FALSE(data.legendTellsSomething());
}

TEST(ChartPlotData, AHiddenSeriesIsLeftOutAndKeepsItsColour)
{
    Chart chart;
    chart.series = {{1}, {2}, {3}};
    chart.labels = {u"A"};
    const Colour third = PlotData(chart).series()[2].colour;
    chart.hidden = {1};
    const PlotData data(chart);
    ASSERT_EQ(data.series().size(), 2U);
    EXPECT_EQ(data.series()[1].number, 2U);
    EXPECT_EQ(data.series()[1].colour, third);
    EXPECT_EQ(reachOf(data), (Range{0, 4}));
}

TEST(ChartPlotData, AProjectionHasTheColourOfTheProjectedSeries)
{
    Chart chart = newestMonthProjected();
    chart.series.push_back({5, 5, 0});
    const PlotData data(chart);
    EXPECT_EQ(data.series()[0].colour, (Colour{0x24, 0x58, 0xB0}));
    EXPECT_EQ(data.series()[1].colour, data.series()[0].colour);
    EXPECT_EQ(data.series()[2].colour, (Colour{0xDB, 0x9A, 0x35}));
    EXPECT_FALSE(data.series()[1].ownColour);
    chart.colours = {{0, {1, 2, 3}}};
    EXPECT_EQ(PlotData(chart).series()[1].colour, (Colour{1, 2, 3}));
    EXPECT_TRUE(PlotData(chart).series()[0].ownColour);
    chart.colours[1] = {4, 5, 6};
    const PlotData coloured(chart);
    EXPECT_EQ(coloured.series()[1].colour, (Colour{4, 5, 6}));
    EXPECT_FALSE(coloured.series()[2].ownColour) << "it is not a projection";
    EXPECT_EQ(coloured.series()[2].colour, (Colour{0xDB, 0x9A, 0x35}));
}

TEST(ChartPlotData, ANameIsTheLegendElseTheDesignsElseTheFirstTitle)
{
    Chart chart;
    chart.titles = {{1, u"Paid/Lost"}};
    chart.series = {{1}, {2}, {3}};
    chart.labels = {u"A"};
    chart.legends = {{0, u"Own"}};
    chart.design.legends = {{0, u"Designed"}, {1, u"Lost"}};
    const PlotData data(chart);
    EXPECT_EQ(data.series()[0].name, u"Own");
    EXPECT_EQ(data.series()[1].name, u"Lost");
    EXPECT_EQ(data.series()[2].name, u"Paid/Lost");
}

TEST(ChartPlotData, HasALegendFromTwoNamesOn)
{
    Chart chart;
    chart.series = {{1, 2}, {3, 4}};
    chart.labels = {u"A", u"B"};
    EXPECT_FALSE(PlotData(chart).legendTellsSomething());
    chart.legends = {{0, u"Diesel"}};
    EXPECT_FALSE(PlotData(chart).legendTellsSomething());
    chart.legends[1] = u"Lubes";
    EXPECT_TRUE(PlotData(chart).legendTellsSomething());
    chart.hidden = {0};
    EXPECT_FALSE(PlotData(chart).legendTellsSomething());
}

TEST(ChartPlotData, ASeriesWithoutNameAndFiguresIsLeftOut)
{
    Chart chart;
    chart.series = {{1, 2}, {3, 4}, {0, 0}};
    chart.labels = {u"A", u"B"};
    EXPECT_EQ(PlotData(chart).series().size(), 3U);
    chart.legends = {{0, u"Diesel"}, {1, u"Lubes"}};
    EXPECT_EQ(PlotData(chart).series().size(), 2U);
    chart.series[2][1] = 1;
    EXPECT_EQ(PlotData(chart).series().size(), 3U);
}

TEST(ChartPlotData, SeriesOfOnePointWithoutLabelsAreComponents)
{
    Chart chart;
    chart.series = {{4.25}, {-2.5}};
    chart.legends = {{0, u"Volume"}, {1, u"Margin"}};
    chart.design.bars = ChartDesign::Bars::Grouped;
    const PlotData data(chart);
    EXPECT_TRUE(data.components());
    EXPECT_EQ(data.pointCount(), 2);
    EXPECT_EQ(data.label(1), u"Margin");
    EXPECT_EQ(narrow(data.sentence(0)), "Volume: 4.25");
    EXPECT_EQ(narrow(data.sentence(1)), "Margin: -2.50");
    EXPECT_FALSE(data.legendTellsSomething());
    chart.labels = {u"A"};
    EXPECT_FALSE(PlotData(chart).components());
}

TEST(ChartPlotData, ASingleSeriesIsNotAComponent)
{
    Chart chart;
    chart.series = {{4.25}, {-2.5}};
    chart.legends = {{0, u"Volume"}, {1, u"Margin"}};
    chart.hidden = {1};
    const PlotData data(chart);
    EXPECT_FALSE(data.components());
    EXPECT_TRUE(data.label(0).empty());
    EXPECT_EQ(narrow(data.sentence(0)), "Volume 4.25");
}

TEST(ChartPlotData, AComponentWithoutNameAndFiguresHasNoSlot)
{
    Chart chart;
    chart.series = {{4}, {0}, {3}};
    chart.legends = {{0, u"Volume"}, {2, u"Margin"}};
    const PlotData data(chart);
    EXPECT_EQ(data.slotCount(), 2);
    EXPECT_EQ(data.label(1), u"Margin");
    EXPECT_TRUE(data.label(2).empty());
}

TEST(ChartPlotData, NonFiniteFiguresBecomeFinite)
{
    const double infinity = std::numeric_limits<double>::infinity();
    Chart chart;
    chart.series = {{std::nan(""), infinity, -infinity}, {1e308, 1e308}};
    chart.labels = {u"A", u"B", u"C"};
    const PlotData data(chart);
    EXPECT_EQ(data.value(0, 0), 0);
    EXPECT_TRUE(std::isfinite(reachOf(data).high));
    EXPECT_TRUE(std::isfinite(reachOf(data).low));
    EXPECT_FALSE(data.value(1, 2));
}

TEST(ChartPlotData, JoinsTheTitles)
{
    Chart chart = newestMonthProjected();
    EXPECT_EQ(narrow(titlesInOneLine(chart)), "Sales, Product: 4711");
    chart.titles[3] = u"WH: 1";
    EXPECT_EQ(narrow(titlesInOneLine(chart)), "Sales, Product: 4711, WH: 1");
    EXPECT_TRUE(titlesInOneLine({}).empty());
}

} // namespace plotvue
