#include "chart/figuretext.h"
#include "chart/scale.h"
#include "unit/chartfixture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace plotvue {

namespace {

std::string ticks(const Scale& scale)
{
    std::string all;
    for (const double tick : scale.ticks) {
        if (!all.empty())
            all += ' ';
        all += narrow(figureText(tick, scale.decimals));
    }
    return all;
}

Scale own(double low, double high, std::optional<int> decimals, int steps = 5)
{
    return scaleFor({low, high}, {{}, {}, decimals, steps});
}

} // namespace

TEST(ChartScale, TakesTheFirstStepThatIsLargeEnough)
{
    EXPECT_EQ(ticks(own(0, 5, 0)), "0 1 2 3 4 5");
    EXPECT_EQ(ticks(own(0, 9, 0)), "0 2 4 6 8 10");
    EXPECT_EQ(ticks(own(0, 120, 0)), "0 25 50 75 100 125");
    EXPECT_EQ(ticks(own(0, 140, 0)), "0 50 100 150");
    EXPECT_EQ(ticks(own(0, 390, 0)), "0 100 200 300 400");
}

TEST(ChartScale, HasOnlyStepsThatTheDecimalsCanWrite)
{
    EXPECT_EQ(ticks(own(0, 12, 0)), "0 5 10 15");
    EXPECT_EQ(ticks(own(0, 12, 1)), "0.0 2.5 5.0 7.5 10.0 12.5");
    EXPECT_EQ(ticks(own(0, 0.4, 0)), "0 1");
    EXPECT_EQ(ticks(own(0, 1.2, 1)), "0.0 0.5 1.0 1.5");
    EXPECT_EQ(ticks(own(0, 1.2, 2)), "0.00 0.25 0.50 0.75 1.00 1.25");
    EXPECT_EQ(own(0, 5e6, 5).ticks.size(), 6U) << "a step may be many times the smallest one";
}

TEST(ChartScale, HasTheDecimalsThatItsStepsNeedIfNoneAreGiven)
{
    EXPECT_EQ(ticks(own(0, 12, {})), "0.0 2.5 5.0 7.5 10.0 12.5");
    EXPECT_EQ(ticks(own(0, 1.2, {})), "0.00 0.25 0.50 0.75 1.00 1.25");
    EXPECT_EQ(ticks(own(0, 0.5, {})), "0.0 0.1 0.2 0.3 0.4 0.5");
    EXPECT_EQ(ticks(own(0, 450000, {})), "0 100,000 200,000 300,000 400,000 500,000");
}

TEST(ChartScale, ExtendsBelowZero)
{
    EXPECT_EQ(ticks(own(-30, 40, 0, 4)), "-40 -20 0 20 40");
    EXPECT_EQ(ticks(own(-7, 0, 0)), "-8 -6 -4 -2 0");
    EXPECT_FALSE(std::signbit(own(-7, 0, 0).ticks.back()));
}

TEST(ChartScale, ExtendsToTheEndsOfStacksOrOfTheLongestBarsOfAGroup)
{
    Chart chart;
    chart.series = {{-5, 3}, {10, -7}, {0, 0}, {4, -2}};
    chart.labels = {u"A", u"B"};
    EXPECT_EQ(reachOf(PlotData(chart)), (Range{-9, 14}));
    chart.design.bars = ChartDesign::Bars::Grouped;
    EXPECT_EQ(reachOf(PlotData(chart)), (Range{-7, 10}));
}

TEST(ChartScale, EndsAtOneWithoutFigures)
{
    EXPECT_EQ(ticks(own(0, 0, {})), "0 1");
    EXPECT_EQ(ticks(own(0, 0, 2)), "0.00 1.00");
}

TEST(ChartScale, KeepsGivenEnds)
{
    const Scale scale = scaleFor({-1, 2}, {-2.6, 4.3, 1, 5});
    EXPECT_EQ(scale.min, -2.6);
    EXPECT_EQ(scale.max, 4.3);
    EXPECT_EQ(ticks(scale), "-2.0 0.0 2.0 4.0");
    EXPECT_EQ(ticks(scaleFor({0, 20}, {{}, 25, 0, 4})), "0 10 20");
    EXPECT_EQ(scaleFor({0, 20}, {0, 20, 0, 5}).max, 20);
    EXPECT_EQ(scaleFor({0, 1e9}, {{}, 1e9 + 5, 0, 5}).max, 1e9 + 5);
    const Scale tight = scaleFor({-7, 93}, {-7, 93, 0, 5});
    EXPECT_EQ(tight.min, -7) << "the end of the longest bar";
    EXPECT_EQ(tight.max, 93);
}

TEST(ChartScale, IgnoresAnEndThatWouldCutABar)
{
    EXPECT_EQ(ticks(scaleFor({-6000, 10600}, {{}, 4600, 0, 5})), "-10,000 -5,000 0 5,000 10,000 15,000");
    const Scale high = scaleFor({0, 21}, {0, 20, 0, 5});
    EXPECT_EQ(high.min, 0);
    EXPECT_EQ(high.max, 25);
    const Scale low = scaleFor({-6, 20}, {-5, 40, 0, 5});
    EXPECT_EQ(low.min, -10);
    EXPECT_EQ(low.max, 40) << "the other end is kept";
    EXPECT_EQ(scaleFor({0, 20}, {5, {}, 0, 5}).min, 0) << "every bar begins at 0";
}

TEST(ChartScale, IgnoresBothEndsIfTheMaximumIsNotAboveTheMinimum)
{
    EXPECT_EQ(ticks(scaleFor({0, 20}, {{}, 0, 0, 4})), "0 5 10 15 20");
    EXPECT_EQ(ticks(scaleFor({0, 20}, {8, 8, 0, 4})), "0 5 10 15 20");
    EXPECT_EQ(ticks(scaleFor({0, 0}, {0, 0, 0, 4})), "0 1");
    EXPECT_EQ(ticks(scaleFor({5.5, 5.5}, {5.5, 5.5, 0, 4})), "5 6");
    const Scale allNegative = scaleFor({-20, 0}, {{}, 0, 0, 4});
    EXPECT_EQ(allNegative.max, 0);
    EXPECT_EQ(allNegative.min, -20);
}

TEST(ChartScale, IgnoresAnEndThatIsNotFinite)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ticks(scaleFor({0, 20}, {{}, infinity, 0, 4})), "0 5 10 15 20");
    EXPECT_EQ(ticks(scaleFor({0, 20}, {-infinity, {}, 0, 4})), "0 5 10 15 20");
    EXPECT_EQ(ticks(scaleFor({0, 20}, {std::nan(""), {}, 0, 4})), "0 5 10 15 20");
}

TEST(ChartScale, SurvivesExtremeFigures)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Range reach :
         {Range{0, 1e300}, Range{-1e305, 1e305}, Range{-1.5e308, 1.5e308}, Range{0, 5e-324}, Range{0, 1e-9}})
        for (const std::optional<int> decimals :
             {std::optional<int>(), std::optional(0), std::optional(40)}) {
            const Scale scale = scaleFor(reach, {infinity, -infinity, decimals, 5});
            EXPECT_GT(scale.max, scale.min);
            EXPECT_FALSE(scale.ticks.empty());
            EXPECT_LE(scale.ticks.size(), 50U);
        }
    const Scale faint = scaleFor({0, 1}, {1e18, 1e18 + 1024, 0, 5});
    EXPECT_LE(faint.ticks.size(), 50U);
}

TEST(ChartFigureText, WritesThousandsAndMinus)
{
    EXPECT_EQ(narrow(figureText(0, 0)), "0");
    EXPECT_EQ(narrow(figureText(999, 0)), "999");
    EXPECT_EQ(narrow(figureText(1000, 0)), "1,000");
    EXPECT_EQ(narrow(figureText(987654321.4, 0)), "987,654,321");
    EXPECT_EQ(narrow(figureText(1234567.891, 2)), "1,234,567.89");
    EXPECT_EQ(figureText(-1234.5, 1), u"\u22121,234.5");
    EXPECT_EQ(narrow(figureText(-0.3, 0)), "0");
    EXPECT_EQ(narrow(figureText(-0.3, 1)), "-0.3");
    EXPECT_EQ(narrow(figureText(1e15 - 1, 0)), "999,999,999,999,999");
    EXPECT_EQ(narrow(figureText(1e15, 0)), "1.00e+15");
    EXPECT_EQ(narrow(figureText(1e300, 2)), "1.00e+300");
}

TEST(ChartFigureText, CountsTheDecimalsNeeded)
{
    EXPECT_EQ(decimalsNeeded(12, 2), 0);
    EXPECT_EQ(decimalsNeeded(-2.5, 2), 1);
    EXPECT_EQ(decimalsNeeded(0.07, 2), 2);
    EXPECT_EQ(decimalsNeeded(1.0 / 3, 2), 2);
}

TEST(ChartFigureText, NeedsNoDecimalsForRoundingErrors)
{
    const double nothing = 0.3 - 0.1 - 0.2, large = 1500000000 * 1.1;
    ASSERT_NE(nothing, 0);
    ASSERT_NE(large, 1650000000);
    EXPECT_EQ(decimalsNeeded(nothing, 2), 0);
    EXPECT_EQ(decimalsNeeded(large, 2), 0);
}

} // namespace plotvue
