#include "app/screens.h"
#include "support/capturebuilder.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

using testing::ElementsAre;

INSTANTIATE_TEST_SUITE_P(FrmPware, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmPware,
                             .sample = "prodware",
                             .newestLine = 7,
                             .dayLine = 1,
                             .dayColumn = 17,
                             .days = 30,
                             .day = 18,
                             .percent = hundredTimesQuotient,
                             .periods = {u"12 Month", u"24 Month", u"6 Month"},
                             .types = {u"Sales", u"Profit", u"Volume", u"GP %", u"G/P Units"},
                             .periodFrame = u"",
                             .typeFrame = u"",
                         }));

class FrmPware : public testing::Test {
protected:
    FrmPware() { tester.start(screen.text()); }

    HostScreen screen{sample("prodware")};
    HistoryTester tester{"frmPware"};
};

TEST_F(FrmPware, NamesTheProductThePackAndTheWarehouse)
{
    EXPECT_EQ(tester.title(2), u"0020450003  KEROSENE K-1 LOW SULFUR");
    EXPECT_EQ(tester.title(3), u"Pack: 0055 BULK  WH: 001");
}

TEST_F(FrmPware, ReadsThe14thMonthFromLine8AndTheOldestFromLine19)
{
    tester.choose(Sales, Months24);
    const Chart chart = tester.chart();
    EXPECT_EQ(chart.series[0][24], 109601.92);
    EXPECT_EQ(chart.series[0][12], 174545.18); // the 13th, on line 19 of the left half
    EXPECT_EQ(chart.series[0][11], 121262.58);
    EXPECT_EQ(chart.series[0][0], 156842.38);
    EXPECT_EQ(chart.labels[24], u"N99");
    EXPECT_EQ(chart.labels[11], u"O98");
    EXPECT_EQ(chart.labels[0], u"N97");
    EXPECT_NEAR(chart.series[1][24], 109601.92 * 12 / 18, 1e-6); // 12 of 30 days are still to come
}

TEST_F(FrmPware, WorksOutPercentagesAndUnitProfits)
{
    EXPECT_NEAR(tester.newest(Percent), 9.558272, 1e-6);
    EXPECT_NEAR(tester.newest(PerUnit), 10.707294, 1e-6);
}

TEST_F(FrmPware, CutsItsTitlesAtTheirColumns)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"P:x0123456789y:")
        .put(2, 43, u"aBCDE ")
        .replaceLine(3, u"P:x4567y:")
        .put(3, 43, u"aVWXYZb")
        .replaceLine(4, u"W: 12345:");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"0123456789  BCDE ");
    EXPECT_EQ(tester.title(3), u"Pack: 4567VWXYZ  WH:  12");
}

TEST_F(FrmPware, LeavesTheLineEndOutOfItsMainTitleOnly)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"PRODUCT: 123").replaceLine(3, u"PACK: 55").replaceLine(4, u"WHSE:1");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"123  ");
    EXPECT_EQ(tester.title(3), u"Pack: 55\r  WH: 1\r");

    tester.refresh(
        HostScreen(screen).replaceLine(3, Text(u"PACK: 0055").append(34, u' ').append(u"TIN")).text());
    EXPECT_EQ(tester.title(3), u"Pack: 0055 TIN\r  WH: 001");
}

TEST_F(FrmPware, CountsItsTitlesFromTheStartOfLinesWithoutAColon)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"ABCDEFGHIJKLM").replaceLine(3, u"ABCDEFGHIJKLM").replaceLine(4, u"123456");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"BCDEFGHIJK  ");
    EXPECT_EQ(tester.title(3), u"Pack: BCDE  WH: 123");
}

TEST_F(FrmPware, IsLeftWhenItsIdentifierIsAbsent)
{
    tester.expectRefusal(sample("salesman"));
    tester.expectRefusal(blotted(screen.text(), u"QXM32C") + u"qxm32c");
    tester.expectRefusal(u"");
}

TEST_F(FrmPware, TakesTheDayBehindTheFirstIdentifier)
{
    tester.refresh(HostScreen(screen).put(23, 1, u"QXM32C       11/25/99").text());
    EXPECT_NEAR(tester.newest(Sales, 1), 109601.92 * 12 / 18, 1e-6);
}

TEST_F(FrmPware, FindsItsIdentifierHoweverFarDown)
{
    const Text unnamed = blotted(screen.text(), u"QXM32C");
    EXPECT_THAT(tester.refresh(withWordAt(unnamed, u"QXM32C", 40000)), ElementsAre());
    EXPECT_EQ(tester.newest(Sales, 1), 0);
    EXPECT_THAT(tester.refresh(withWordAt(unnamed, u"QXM32C          15", 40000)), ElementsAre());
    EXPECT_EQ(tester.newest(Sales, 1), 109601.92);
}

} // namespace plotvue::test
