// What the windows of screens with volume, sales and profit do with the newest month, for each of the
// screens.
#include "capture/utf8.h"
#include "unit/monthlyscreens.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

// The newest month has 30 days, of which ten are over and two thirds are to come.
class MonthlySales : public testing::TestWithParam<ExpectedScreen>, public ChartWindow {
protected:
    MonthlySales() : ChartWindow(GetParam().window, GetParam().sample)
    {
        screen.put(line, 1, u"NOV99").put(1, expected.dayColumn, u"10");
        thousand = newestMonth(u"", u"1000", u"");
        open();
    }

    static Text field(TextSpan text) { return Text(9 - text.size(), u' ').append(text); }

    // The screen with these figures in the newest month.
    CaptureBuilder newestMonth(TextSpan volume, TextSpan sales, TextSpan profit) const
    {
        return CaptureBuilder(screen)
            .put(line, 7, field(volume))
            .put(line, 17, field(sales))
            .put(line, 27, field(profit));
    }

    // The value that the chart shows for these figures of the newest month.
    double shown(int type, TextSpan volume, TextSpan sales, TextSpan profit, std::size_t series = 0)
    {
        EXPECT_EQ(refresh(newestMonth(volume, sales, profit)), Events{});
        return newest(type, series);
    }

    // The projected rest of the newest month, when its sales are 1000.
    double toCome(const CaptureBuilder& capture)
    {
        EXPECT_EQ(refresh(capture), Events{});
        return newest(Sales, 1);
    }
    double toComeOn(TextSpan label, TextSpan day)
    {
        return toCome(thousand.put(line, 1, label).put(1, expected.dayColumn, day));
    }

    const ExpectedScreen& expected = GetParam();
    const int line = expected.months[0].line;
    CaptureBuilder thousand; // the screen with sales of 1000 in the newest month
};

TEST_P(MonthlySales, AFigureIsItsLeadingNumber)
{
    const std::pair<TextSpan, double> figures[] = {
        {u"1,234", 1},  {u"1234-", 1234}, {u"(1234)", 0}, {u"12 34.5", 1234.5}, {u"-1234", -1234},
        {u"2E3", 2000}, {u"NONE", 0},     {u"", 0},       {u"-56.5", -56.5},    {u"PENDING", 0}};
    for (const auto& [text, value] : figures) {
        EXPECT_EQ(shown(Volume, text, u"", u""), value) << toUtf8(text);
        EXPECT_EQ(shown(Sales, u"", text, u""), value) << toUtf8(text);
        EXPECT_EQ(shown(Profit, u"", u"", text), value) << toUtf8(text);
    }
}

TEST_P(MonthlySales, ProfitIsDividedBySalesOrVolume)
{
    EXPECT_EQ(shown(Percent, u"400", u"200", u"50"), 25);
    EXPECT_EQ(shown(Percent, u"400", u"200", u"-50"), -25);
    EXPECT_EQ(shown(PerUnit, u"400", u"200", u"50"), 12.5);
    EXPECT_EQ(shown(PerUnit, u"-400", u"200", u"50"), -12.5);
}

TEST_P(MonthlySales, WithoutSalesOrVolumeAQuotientIsZero)
{
    for (const TextSpan none : {u"0", u"", u"N/A"}) {
        EXPECT_EQ(shown(Percent, u"20", none, u"50"), 0);
        EXPECT_EQ(shown(PerUnit, u"20", none, u"50"), 250);
        EXPECT_EQ(shown(PerUnit, none, u"200", u"50"), 0);
        EXPECT_EQ(shown(Percent, none, u"200", u"50"), 25);
    }
}

TEST_P(MonthlySales, TwoThirdsOfTheMonthAreToCome)
{
    EXPECT_NEAR(shown(Sales, u"", u"1000", u"", 1), 2000, 1e-9);
    EXPECT_NEAR(shown(Sales, u"", u"-1000", u"", 1), -2000, 1e-9);
    EXPECT_NEAR(shown(Profit, u"", u"", u"60", 1), 120, 1e-9);
    EXPECT_NEAR(shown(Volume, u"90", u"", u"", 1), 180, 1e-9);
    EXPECT_EQ(shown(Sales, u"90", u"0", u"60", 1), 0);
    EXPECT_EQ(shown(Percent, u"90", u"40", u"60", 1), 0);
    EXPECT_EQ(shown(PerUnit, u"90", u"40", u"60", 1), 0);
}

TEST_P(MonthlySales, TheDayTellsHowMuchOfTheMonthIsToCome)
{
    EXPECT_EQ(toComeOn(u"JUN96", u"15"), 1000);
    EXPECT_EQ(toComeOn(u"JUN96", u"30"), 0);
    EXPECT_NEAR(toComeOn(u"JUN96", u"40"), -250, 1e-9);
    EXPECT_NEAR(toComeOn(u"OCT99", u"11"), 1000 * 20.0 / 11, 1e-9);
    for (const TextSpan february : {u"FEB96", u"FEB99", u"FEB00"}) // 28 days in leap years too
        EXPECT_EQ(toComeOn(february, u"14"), 1000);
}

TEST_P(MonthlySales, WithoutADayNothingIsProjected)
{
    for (const TextSpan day : {u"  ", u"00", u"XX", u"/1", u" 0"}) {
        EXPECT_EQ(toComeOn(u"NOV99", day), 0) << toUtf8(day);
        EXPECT_EQ(newest(Sales), 1000);
    }
}

TEST_P(MonthlySales, TheDayIsTwoCharacters)
{
    const auto dayAround = [&](TextSpan text) {
        return toCome(thousand.put(1, expected.dayColumn - 1, text));
    };
    EXPECT_NEAR(dayAround(u"9103"), 2000, 1e-9);
    EXPECT_NEAR(dayAround(u"9 13"), 29000, 1e-9);
    EXPECT_NEAR(dayAround(u"96/3"), 4000, 1e-9);
}

TEST_P(MonthlySales, TheDayIsCountedFromTheFirstIdentifier)
{
    const Text first = thousand.line(1);
    EXPECT_NEAR(toCome(thousand.replaceLine(1, u"  " + first)), 2000, 1e-9);
    const Text later = CaptureBuilder(thousand).put(1, expected.dayColumn + 2, u"15").line(1);
    EXPECT_NEAR(toCome(thousand.replaceLine(24, later)), 2000, 1e-9);
}

TEST_P(MonthlySales, OtherMonthsNeedNoName)
{
    EXPECT_EQ(refresh(CaptureBuilder(screen).put(line + 1, 1, u"XXX99")), Events{});
    EXPECT_EQ(chart().labels.at(11), u"XXX99");
}

TEST_P(MonthlySales, FiguresBeyondADoubleAreRunTimeErrors)
{
    const struct {
        int type;
        TextSpan volume, sales, profit;
    } figures[] = {{Sales, u"", u"1E999", u""},
                   {Sales, u"", u"9E307", u""}, // what is to come is too large
                   {Percent, u"", u"1E-300", u"1E300"},
                   {PerUnit, u"1E-300", u"", u"1E300"}};
    for (const auto& [type, volume, sales, profit] : figures) {
        ChartWindow failing(window, screen);
        failing.open();
        failing.choose(type, Year);
        EXPECT_THAT(failing.refresh(newestMonth(volume, sales, profit)), ElementsAre(StartsWith("error ")));
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, MonthlySales, testing::ValuesIn(salesScreens()),
                         [](const auto& tested) { return std::string(tested.param.window); });

} // namespace
} // namespace plotvue::test
