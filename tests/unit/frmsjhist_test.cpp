#include "app/screens.h"
#include "support/capturebuilder.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

using testing::ElementsAre;

INSTANTIATE_TEST_SUITE_P(FrmSJHIST, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmSJHIST,
                             .sample = "salesjournal",
                             .newestLine = 6,
                             .dayLine = 1,
                             .dayColumn = 20,
                             .days = 31,
                             .day = 7,
                             .percent = hundredTimesQuotient,
                             .periods = {u"12", u"24", u"6"},
                             .types = {u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"},
                         }));

class FrmSJHIST : public testing::Test {
protected:
    FrmSJHIST() { tester.start(screen.text()); }

    HostScreen screen{sample("salesjournal")};
    HistoryTester tester{"frmSJHIST"};
};

TEST_F(FrmSJHIST, NamesTheWarehouseTheProfitCentreAndTheCategory)
{
    EXPECT_EQ(tester.title(2), u"WH: 001 HARBOR ROAD TERMINALS  PftCtr: 100 WHOLESALE");
    EXPECT_EQ(tester.title(3), u"Category: DISTILLATES");
}

TEST_F(FrmSJHIST, ReadsSixMonthsFromLines6To11)
{
    tester.choose(Sales, Months6);
    const Chart chart = tester.chart();
    EXPECT_THAT(chart.series[0],
                ElementsAre(159295.50, 162160.70, 220758.45, 259334.75, 176201.99, 29896.12, 0));
    EXPECT_THAT(chart.labels, ElementsAre(u"JUL99", u"AUG99", u"SEP99", u"OCT99", u"NOV99", u"DEC99", u""));
    EXPECT_NEAR(chart.series[1][5], 29896.12 * 24 / 7, 1e-6); // 24 of 31 days are still to come
}

TEST_F(FrmSJHIST, ReadsThe13thMonthFromLine18AndTheRightHalfFromLines7To18)
{
    tester.choose(Profit, Months24);
    const Chart chart = tester.chart();
    EXPECT_EQ(chart.series[0][12], 8363.44);
    EXPECT_EQ(chart.series[0][11], 15053.99);
    EXPECT_EQ(chart.series[0][0], 8958.99);
    EXPECT_EQ(chart.series[0][20], -3405.37); // a month of loss
    EXPECT_EQ(chart.labels[12], u"D98");
    EXPECT_EQ(chart.labels[11], u"N98");
    EXPECT_EQ(chart.labels[0], u"D97");
}

TEST_F(FrmSJHIST, CutsItsTitlesAtTheirMarks)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"W:ABCDEFGHIJKLMNOPQRSTUVWXYZ CTR:A CTR:B ").replaceLine(3, u"C: A:B ");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"WH: ABCDEFGHIJKLMNOPQRSTUVWXY  PftCtr: A CTR:B ");
    EXPECT_EQ(tester.title(3), u"Category:  A:B ");
}

TEST_F(FrmSJHIST, StartsTheProfitCentreAtColumn4WithoutItsMark)
{
    tester.refresh(HostScreen(screen).replaceLine(2, u"WH:001 HARBOR ROAD").text());
    EXPECT_EQ(tester.title(2), u"WH: 001 HARBOR ROAD\r  PftCtr: 001 HARBOR ROAD");
}

TEST_F(FrmSJHIST, TakesTheTextsFromTheStartOfLinesWithoutAColon)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ").replaceLine(3, u"DISTILLATES");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"WH: ABCDEFGHIJKLMNOPQRSTUVWXY  PftCtr: DEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(tester.title(3), u"Category: DISTILLATES");
}

TEST_F(FrmSJHIST, IsLeftWhenItsIdentifierIsAbsent)
{
    tester.expectRefusal(sample("salesman"));
    tester.expectRefusal(blotted(screen.text(), u"QXMSJHIST") + u"qxmsjhist");
    tester.expectRefusal(u"");
}

TEST_F(FrmSJHIST, FindsItsIdentifierHoweverFarDown)
{
    const Text unnamed = blotted(screen.text(), u"QXMSJHIST");
    tester.refresh(withWordAt(unnamed, u"QXMSJHIST          31", 40000));
    EXPECT_EQ(tester.newest(Sales, 1), 0);
    tester.refresh(withWordAt(unnamed, u"QXMSJHIST          28", 40000));
    EXPECT_NEAR(tester.newest(Sales, 1), 29896.12 * 3 / 28, 1e-6);
}

} // namespace plotvue::test
