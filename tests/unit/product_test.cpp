#include "app/screens.h"
#include "capture/utf8.h"
#include "history/monthlyreader.h"
#include "unit/product_fixture.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

TEST_F(ProductTest, FieldsAreReadFromEdgeToEdge)
{
    for (const auto& [type, base, step] : {std::tuple{Volume, 111000000, 1}, std::tuple{Sales, 222000000, 2},
                                           std::tuple{Profit, 333000000, 3}}) {
        const std::vector<double> values = chart(fullScreen(), type, TwoYears).series.at(0);
        ASSERT_EQ(values.size(), 26u);
        for (int month = 1; month <= 25; ++month)
            EXPECT_EQ(values[static_cast<std::size_t>(25 - month)], base + step * month) << month;
        EXPECT_EQ(values.back(), 0);
    }
}

TEST_F(ProductTest, AYearIsTheLeftBlock)
{
    const Chart year = chart(fullScreen(), Sales, Year);
    EXPECT_THAT(year.labels, ElementsAre(u"NOV98", u"DEC98", u"JAN99", u"FEB99", u"MAR99", u"APR99", u"MAY99",
                                         u"JUN99", u"JUL99", u"AUG99", u"SEP99", u"OCT99", u"NOV99", u""));
    EXPECT_EQ(year.series[0].front(), 222000026);
    EXPECT_EQ(year.series[0][12], 222000002);
    EXPECT_EQ(year.series[0][13], 0);
}

TEST_F(ProductTest, HalfAYearIsSixMonths)
{
    const Chart half = chart(fullScreen(), Sales, HalfYear);
    EXPECT_THAT(half.labels, ElementsAre(u"JUN99", u"JUL99", u"AUG99", u"SEP99", u"OCT99", u"NOV99", u""));
    EXPECT_THAT(half.series[0],
                ElementsAre(222000012, 222000010, 222000008, 222000006, 222000004, 222000002, 0));
}

TEST_F(ProductTest, TwoYearsHaveShortLabels)
{
    EXPECT_THAT(chart(fullScreen(), Sales, TwoYears).labels,
                ElementsAre(u"N97", u"D97", u"J98", u"F98", u"M98", u"A98", u"M98", u"J98", u"J98", u"A98",
                            u"S98", u"O98", u"N98", u"D98", u"J99", u"F99", u"M99", u"A99", u"M99", u"J99",
                            u"J99", u"A99", u"S99", u"O99", u"N99", u""));
}

TEST_F(ProductTest, UpToEighteenMonthsHaveLongLabels)
{
    const Text capture = fullScreen().text();
    const auto newest = [&](int months) {
        return readMonths(frmProduct, capture, 1, months, frmProduct.types[0]).labels.at(months - 1);
    };
    EXPECT_EQ(newest(18), u"NOV99");
    EXPECT_EQ(newest(19), u"N99");
}

TEST_F(ProductTest, TheRightBlockStartsOnTheSecondLineUnderTheDashes)
{
    CaptureBuilder capture = fullScreen();
    capture.put(6, right, fullRow(u"XXX00", 99));
    EXPECT_EQ(chart(capture, Sales, TwoYears).series[0][11], 222000028);
    EXPECT_EQ(chart(capture, Sales, TwoYears).labels[11], u"O98");
}

TEST_F(ProductTest, TypesHaveTheirTitleAndDecimals)
{
    const std::pair<TextSpan, int> expected[] = {
        {u"Sales", 0}, {u"Profit", 0}, {u"Volume", 0}, {u"Profit%", 2}, {u"Unit G/P", 2}};
    for (int type = Sales; type <= UnitProfit; ++type) {
        const Chart content = chart(screen(), static_cast<Type>(type));
        EXPECT_EQ(content.titles.at(1), expected[type].first);
        EXPECT_EQ(content.decimals, expected[type].second);
        EXPECT_EQ(content.titles.count(3), 0u);
    }
}

TEST_F(ProductTest, PercentIsProfitBySales)
{
    EXPECT_EQ(value(newest(u"400", u"200", u"50"), GrossPercent), 25);
    EXPECT_EQ(value(newest(u"400", u"200", u"-50"), GrossPercent), -25);
}

TEST_F(ProductTest, UnitProfitIsProfitByVolumeInHundredths)
{
    EXPECT_EQ(value(newest(u"400", u"200", u"50"), UnitProfit), 12.5);
    EXPECT_EQ(value(newest(u"-400", u"200", u"50"), UnitProfit), -12.5);
}

TEST_F(ProductTest, TheQuotientComesBeforeTheHundred)
{
    ASSERT_NE(1.0 / 3 * 100, 100.0 / 3);
    EXPECT_EQ(value(newest(u"", u"3", u"1"), GrossPercent), 1.0 / 3 * 100);
    EXPECT_EQ(value(newest(u"3", u"", u"1"), UnitProfit), 1.0 / 3 * 100);
}

TEST_F(ProductTest, WithoutSalesOrVolumeAPercentageIsZero)
{
    EXPECT_EQ(value(newest(u"400", u"0", u"50"), GrossPercent), 0);
    EXPECT_EQ(value(newest(u"400", u"", u"50"), GrossPercent), 0);
    EXPECT_EQ(value(newest(u"400", u"N/A", u"50"), GrossPercent), 0);
    EXPECT_EQ(value(newest(u"0", u"200", u"50"), UnitProfit), 0);
    EXPECT_EQ(value(newest(u"", u"200", u"50"), UnitProfit), 0);
    EXPECT_FALSE(session.platform.over());
}

TEST_F(ProductTest, AFieldIsItsLeadingNumber)
{
    EXPECT_EQ(value(newest(u"", u"1,234", u"")), 1);
    EXPECT_EQ(value(newest(u"", u"1234-", u"")), 1234);
    EXPECT_EQ(value(newest(u"", u"(1234)", u"")), 0);
    EXPECT_EQ(value(newest(u"", u" 12 34.5", u"")), 1234.5);
    EXPECT_EQ(value(newest(u"", u"-1234", u"")), -1234);
    EXPECT_EQ(value(newest(u"", u"  2E3", u"")), 2000);
    EXPECT_EQ(value(newest(u"", u"  NONE", u"")), 0);
}

TEST_F(ProductTest, AShortRowReadsAsFarAsItGoes)
{
    const Chart content = chart(screen().put(7, left, u"OCT99       123").put(8, left, u"SEP"), Volume);
    EXPECT_EQ(content.series[0][11], 123);
    EXPECT_EQ(content.labels[11], u"OCT99");
    EXPECT_EQ(content.series[0][10], 0);
    EXPECT_EQ(content.labels[10], u"SEP\r");
}

TEST_F(ProductTest, OnTheTenthOf30DaysTwoThirdsAreToCome)
{
    EXPECT_NEAR(projection(newest(u"", u"1000", u"")), 2000, 1e-9);
    EXPECT_NEAR(projection(newest(u"", u"", u"60"), Profit), 120, 1e-9);
    EXPECT_NEAR(projection(newest(u"90", u"", u""), Volume), 180, 1e-9);
    EXPECT_NEAR(projection(newest(u"", u"-1000", u"")), -2000, 1e-9);
    EXPECT_EQ(projection(newest(u"", u"0", u"")), 0);
}

TEST_F(ProductTest, TheProjectionIsTheWholeMonthLessWhatIsThere)
{
    const double elapsed = 1 - (30.0 - 10) / 30;
    EXPECT_EQ(projection(newest(u"", u"1234.56", u"")), 1234.56 / elapsed - 1234.56);
}

TEST_F(ProductTest, OnlyTheNewestMonthIsProjected)
{
    for (const Period period : {Year, TwoYears, HalfYear}) {
        const std::vector<double> projections = chart(fullScreen(), Sales, period).series.at(1);
        const std::size_t newestSlot = projections.size() - 2;
        EXPECT_NEAR(projections[newestSlot], 444000004, 1e-3);
        for (std::size_t slot = 0; slot < projections.size(); ++slot) {
            if (slot != newestSlot) {
                EXPECT_EQ(projections[slot], 0) << slot;
            }
        }
    }
}

TEST_F(ProductTest, PercentagesAreNotProjected)
{
    EXPECT_EQ(projection(newest(u"400", u"200", u"50"), GrossPercent), 0);
    EXPECT_EQ(projection(newest(u"400", u"200", u"50"), UnitProfit), 0);
}

TEST_F(ProductTest, FebruaryHas28DaysInLeapYearsToo)
{
    for (const TextSpan label : {u"FEB99", u"FEB00"}) {
        CaptureBuilder capture = newest(u"", u"1000", u"");
        EXPECT_DOUBLE_EQ(projection(capture.put(6, left, label).put(1, 17, u"14")), 1000);
    }
}

TEST_F(ProductTest, AMonthOf31Days)
{
    CaptureBuilder capture = newest(u"", u"1100", u"");
    EXPECT_NEAR(projection(capture.put(6, left, u"OCT99").put(1, 17, u"11")), 2000, 1e-9);
}

TEST_F(ProductTest, OnTheLastDayNothingIsToCome)
{
    CaptureBuilder capture = newest(u"", u"1000", u"");
    EXPECT_EQ(projection(capture.put(1, 17, u"30")), 0);
}

TEST_F(ProductTest, ADayBehindTheEndOfTheMonthProjectsBackwards)
{
    CaptureBuilder capture = newest(u"", u"1000", u"");
    EXPECT_NEAR(projection(capture.put(1, 17, u"40")), -250, 1e-9);
}

TEST_F(ProductTest, WithoutADayNothingIsProjected)
{
    for (const TextSpan day : {u"  ", u"00", u"XX", u"/1", u" 0"}) {
        CaptureBuilder capture = newest(u"", u"1000", u"");
        EXPECT_EQ(projection(capture.put(1, 17, day)), 0) << toUtf8(day);
    }
}

TEST_F(ProductTest, TheDayIsTwoCharacters)
{
    for (const TextSpan around : {u"91039", u"9 1039"}) {
        CaptureBuilder capture = newest(u"", u"1000", u"");
        // "10" of the first, "1" of the second.
        const double day = around[1] == u' ' ? 1 : 10;
        EXPECT_NEAR(projection(capture.put(1, 16, around)), 1000 * 30 / day - 1000, 1e-9);
    }
    CaptureBuilder capture = newest(u"", u"1000", u"");
    EXPECT_NEAR(projection(capture.put(1, 17, u"6/")), 4000, 1e-9);
}

TEST_F(ProductTest, TheDayStands16CharactersBehindTheFirstIdentifier)
{
    CaptureBuilder capture = newest(u"", u"1000", u"");
    capture.put(1, 1, Text(40, u' ')).put(1, 5, u"QXM31H").put(1, 17, u"30").put(1, 21, u"15");
    capture.put(3, 1, u"QXM31H          10");
    EXPECT_NEAR(projection(capture), 1000, 1e-9);
}

TEST_F(ProductTest, TheDayIsCountedOverTheLineEnd)
{
    CaptureBuilder capture(24);
    // The identifier's six, CR, LF, and eight more characters.
    capture.put(1, 1, u"QXM31H").put(2, 1, u"PRODUCT:15").put(5, 1, u"-----").put(6, 1, u"NOV99");
    EXPECT_NEAR(projection(capture.put(6, 17, u"1000")), 1000, 1e-9);
}

TEST_F(ProductTest, TheIdentifierMayStandAnywhere)
{
    CaptureBuilder capture(24);
    capture.put(2, 1, u"PRODUCT:X").put(5, 1, u"-----").put(6, 1, u"NOV99").put(6, 17, u"1000");
    capture.put(23, 30, u"QXM31H").put(23, 46, u"15");
    EXPECT_NEAR(projection(capture), 1000, 1e-9);
    EXPECT_EQ(value(capture), 1000);
}

TEST_F(ProductTest, AnUnknownNewestMonthIsARunTimeErrorForEveryType)
{
    for (int type = Sales; type <= UnitProfit; ++type) {
        for (const TextSpan name : {u"XXX99", u"Nov99", u"     "}) {
            Session broken;
            broken.start(screen().text());
            broken.choose("frmProduct", "optSales", type);
            broken.events();
            broken.copy(newest(u"1", u"2", u"3").put(6, left, name).text());
            broken.press("frmProduct", "cmdRefresh");
            EXPECT_THAT(broken.events(), ElementsAre(StartsWith("error ")));
        }
    }
}

TEST_F(ProductTest, OtherMonthsMayBeUnknown)
{
    EXPECT_EQ(chart(screen().put(7, 1, u"XXX99").put(7, 17, u"5")).series[0][11], 5);
}

TEST_F(ProductTest, AFigureBeyondADoubleIsARunTimeError)
{
    chart(newest(u"", u"1E999", u""));
    EXPECT_THAT(session.events(), ElementsAre(StartsWith("error ")));
}

TEST_F(ProductTest, AQuotientBeyondADoubleIsARunTimeError)
{
    chart(newest(u"", u"1E-300", u"1E300"), GrossPercent);
    EXPECT_THAT(session.events(), ElementsAre(StartsWith("error ")));
}

TEST_F(ProductTest, AProjectionBeyondADoubleIsARunTimeError)
{
    chart(newest(u"", u"9E307", u""));
    EXPECT_THAT(session.events(), ElementsAre(StartsWith("error ")));
}

TEST_F(ProductTest, AColonThatEndsTheSubjectLineIsNone)
{
    Text capture(20 * 81, u'.'); // no line ends at all: a line is 81 characters, the last taken for its end
    capture.replace(0, 11, u"OCT99QXM31H");
    capture[2 * 81 - 1] = u':';
    EXPECT_EQ(chart(capture).titles.at(2), u"Product: .......... " + Text(70, u'.'));
}

} // namespace
} // namespace plotvue::test
