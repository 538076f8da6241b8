#include "chart/figurestable.h"

#include <gtest/gtest.h>
#include <limits>

namespace plotvue {

namespace {

Text tableOf(const Chart& content, char16_t decimalSign = u'.')
{
    return figuresTable(PlotData(content), decimalSign);
}

// A history chart: two months, the newest one with a projection, and the empty slot after it.
Chart history()
{
    return {.design = {.projection = 1, .legends = {{1, u"Projected"}}},
            .titles = {{1, u"Sales"}, {2, u"Product: 4711"}},
            .decimals = 0,
            .series = {{963.25, 512, 0}, {0, 388.5, 0}},
            .labels = {u"SEP99\r", u" OCT99", u""}};
}

Chart grouped()
{
    return {.design = {ChartDesign::Bars::Grouped, ChartDesign::Labels::Names},
            .series = {{1, 2}, {3, 4}, {5, 6}},
            .labels = {u"ANNE", u"BOB"},
            .legends = {{0, u"OIL"}, {1, u"GAS"}, {2, u"LUBE"}}};
}

} // namespace

TEST(FiguresTable, HasAHeadingAndALinePerPoint)
{
    EXPECT_EQ(tableOf(grouped()), u"\tOIL\tGAS\tLUBE\r\nANNE\t1\t3\t5\r\nBOB\t2\t4\t6\r\n");
}

TEST(FiguresTable, NamesMonthsInFull)
{
    Chart abbreviated = history();
    abbreviated.labels = {u"S99", u"O99", u""};
    abbreviated.fullLabels = {u"SEP99", u"OCT99", u""};
    EXPECT_EQ(tableOf(abbreviated), tableOf(history()));
}

TEST(FiguresTable, OfAStackIsTheSame)
{
    Chart stacked = grouped();
    stacked.design.bars = ChartDesign::Bars::Stacked;
    EXPECT_EQ(tableOf(stacked), tableOf(grouped()));
}

TEST(FiguresTable, HasTheProjectionAndNotTheEmptySlot)
{
    EXPECT_EQ(tableOf(history()), u"\tSales\tProjected\r\nSEP99\t963.25\t0\r\nOCT99\t512\t388.5\r\n");
}

TEST(FiguresTable, HasNoProjectionThatIsNotDrawn)
{
    Chart whole = history();
    whole.series[1] = {0, 0, 0};
    EXPECT_EQ(tableOf(whole), u"\tSales\r\nSEP99\t963.25\r\nOCT99\t512\r\n");
}

TEST(FiguresTable, LeavesHiddenSeriesOut)
{
    Chart one = grouped();
    one.hidden = {0, 2};
    EXPECT_EQ(tableOf(one), u"\tGAS\r\nANNE\t3\r\nBOB\t4\r\n");
    one.hidden = {0, 1, 2};
    EXPECT_EQ(tableOf(one), u"");
}

TEST(FiguresTable, LeavesGroupsOutThatTheScreenDoesNotHave)
{
    Chart two = grouped();
    two.legends[1] = u"";
    two.series[1] = {0, 0};
    EXPECT_EQ(tableOf(two), u"\tOIL\tLUBE\r\nANNE\t1\t5\r\nBOB\t2\t6\r\n");
}

TEST(FiguresTable, HasOneLineForComponents)
{
    const Chart components{.series = {{400}, {-300.5}}, .legends = {{0, u"Volume"}, {1, u"Margin"}}};
    EXPECT_EQ(tableOf(components), u"\tVolume\tMargin\r\n\t400\t-300.5\r\n");
}

TEST(FiguresTable, WritesTheDecimalSignAndNoThousandsSeparators)
{
    Chart figures = grouped();
    figures.series = {{-1234567.25, 0.001}, {0, -0.0}, {1e15, 123456789012345678.}};
    EXPECT_EQ(tableOf(figures, u','), u"\tOIL\tGAS\tLUBE\r\n"
                                      u"ANNE\t-1234567,25\t0\t1000000000000000\r\n"
                                      u"BOB\t0,001\t0\t123456789012346000\r\n");
}

TEST(FiguresTable, DoesNotRoundToTheDecimalsOfTheChart)
{
    Chart figures = grouped();
    figures.decimals = 0;
    figures.hidden = {1, 2};
    figures.series[0] = {93934.66, 1.0 / 3};
    EXPECT_EQ(tableOf(figures), u"\tOIL\r\nANNE\t93934.66\r\nBOB\t0.333333333333333\r\n");
}

TEST(FiguresTable, WritesLargeFiguresExactlyAndWithoutAnExponent)
{
    Chart figures = grouped();
    figures.hidden = {1, 2};
    figures.series[0] = {1e300, -1.5e308};
    EXPECT_EQ(tableOf(figures),
              u"\tOIL\r\nANNE\t1" + Text(300, u'0') + u"\r\nBOB\t-15" + Text(307, u'0') + u"\r\n");
}

TEST(FiguresTable, LeavesCellsEmptyWhereThereIsNoFigure)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Chart figures = grouped();
    figures.series = {{1}, {infinity, -infinity}, {std::numeric_limits<double>::quiet_NaN(), 6}};
    EXPECT_EQ(tableOf(figures), u"\tOIL\tGAS\tLUBE\r\nANNE\t1\t\t\r\nBOB\t\t\t6\r\n");
}

TEST(FiguresTable, KeepsNamesInTheirCells)
{
    Chart odd = grouped();
    odd.hidden = {1, 2};
    odd.labels = {u"A\tB\r\n", u"C D"};
    odd.legends[0] = u"\tOI\nL ";
    EXPECT_EQ(tableOf(odd), u"\tOIL\r\nAB\t1\r\nC D\t2\r\n");
}

TEST(FiguresTable, OfAnEmptyChartIsEmpty)
{
    EXPECT_EQ(tableOf({}), u"");
    EXPECT_EQ(tableOf({.titles = {{2, u"By design"}}, .series = {{}, {}}}), u"");
}

} // namespace plotvue
