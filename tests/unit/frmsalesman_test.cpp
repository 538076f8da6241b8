#include "app/screens.h"
#include "support/capturebuilder.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

INSTANTIATE_TEST_SUITE_P(FrmSalesman, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmSalesman,
                             .sample = "salesman",
                             .newestLine = 7,
                             .dayLine = 1,
                             .dayColumn = 17,
                             .days = 31,
                             .day = 11,
                             .percent = quotientTimesHundred,
                             .periods = {u"12 Month", u"24 Month", u"6 Month"},
                             .types = {u"Sales", u"Profit", u"Volume", u"GP %", u"G/P Units"},
                         }));

class FrmSalesman : public testing::Test {
protected:
    FrmSalesman() { tester.start(screen.text()); }

    HostScreen screen{sample("salesman")};
    HistoryTester tester{"frmSalesman"};
};

TEST_F(FrmSalesman, NamesTheRepresentativeAndTheCategory)
{
    EXPECT_EQ(tester.title(2), u"Sales Rep: 014  HALVARD OSTBY");
    EXPECT_EQ(tester.title(3), u"Category: MOTOR OILS");
}

TEST_F(FrmSalesman, ChartsItsSample)
{
    tester.choose(Sales, Months24);
    const Chart chart = tester.chart();
    EXPECT_EQ(chart.series[0][24], 36838.63);
    EXPECT_EQ(chart.series[0][11], 97217.75); // the 14th month back, at the head of the right half
    EXPECT_EQ(chart.series[0][0], 84122.24);
    EXPECT_EQ(chart.labels[24], u"O99");
    EXPECT_EQ(chart.labels[11], u"S98");
    EXPECT_EQ(chart.labels[0], u"O97");
    EXPECT_NEAR(chart.series[1][24], 36838.63 * 20 / 11, 1e-6); // 20 of 31 days are still to come
}

TEST_F(FrmSalesman, KeepsItsRowsWhereverTheHeadingsStand)
{
    tester.refresh(HostScreen(screen).replaceLine(6, u".").text());
    EXPECT_EQ(tester.chart().labels[12], u"OCT99");

    // Headings a line lower: the newest month would be the dash line.
    EXPECT_THAT(tester.refresh(HostScreen(screen).moveDown(5).text()), Contains(StartsWith("error ")));
}

TEST_F(FrmSalesman, ShiftsEveryMonthByARowWithTheHeadings)
{
    HostScreen lower = HostScreen(screen).moveDown(5);
    lower.replaceLine(7, u"NOV99 HEADINGS A LINE LOWER");
    tester.refresh(lower.text());
    EXPECT_EQ(tester.chart().labels[12], u"NOV99");
    EXPECT_EQ(tester.chart().labels[11], u"OCT99");
    EXPECT_EQ(tester.chart().series[0][11], 36838.63);
    tester.choose(Sales, Months24);
    EXPECT_EQ(tester.chart().labels[11], u""); // the right half has moved too
    EXPECT_EQ(tester.chart().labels[10], u"S98");
}

TEST_F(FrmSalesman, CutsTheRepresentativeAndTheTextsBehindTheColons)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"R:12345678").replaceLine(3, u"A:B:C ").replaceLine(4, u": X");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"Sales Rep: 345  B:C ");
    EXPECT_EQ(tester.title(3), u"Category:  X");
}

TEST_F(FrmSalesman, TakesTheTextsFromTheStartOfLinesWithoutAColon)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"ABCDEFG").replaceLine(3, u"HALVARD OSTBY").replaceLine(4, u"MOTOR OILS");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"Sales Rep: CDE  HALVARD OSTBY");
    EXPECT_EQ(tester.title(3), u"Category: MOTOR OILS");
}

TEST_F(FrmSalesman, ChartsAForeignScreenIntoTheWindowThatItHides)
{
    // This screen's rows begin a line higher; its characters 16 and 17 are taken for the day.
    HostScreen foreign{sample("customer")};
    foreign.put(1, 16, u"20");
    EXPECT_THAT(tester.refresh(foreign.text()), ElementsAre("hide frmSalesman", "show startup"));

    const Chart chart = tester.chart();
    EXPECT_EQ(chart.labels[12], u"AUG99");
    EXPECT_EQ(chart.series[0][12], 139888.96);
    EXPECT_NEAR(chart.series[1][12], 139888.96 * 11 / 20, 1e-6);
    EXPECT_EQ(chart.labels[1], u"SEP98");
    EXPECT_EQ(chart.labels[0], u"     ");
    EXPECT_EQ(chart.titles.at(2), u"Sales Rep: 442  0020450002 UNLEADED REGULAR");
    EXPECT_EQ(chart.titles.at(3), u"Category: MONTH   GALLONS     SALES    PROFIT"
                                  u"      MONTH   GALLONS     SALES    PROFIT");
    EXPECT_FALSE(tester.session.platform.over());
}

TEST_F(FrmSalesman, ChartsAForeignScreenAfterAnOptionToo)
{
    tester.session.events();
    tester.session.copy(sample("customer"));
    tester.session.choose("frmSalesman", "optSales", Profit);
    EXPECT_THAT(tester.session.events(), ElementsAre("hide frmSalesman", "show startup"));
    EXPECT_EQ(tester.chart().series[0][12], 9615.13);
}

TEST_F(FrmSalesman, NeverReturnsFromAnEmptyClipboard)
{
    EXPECT_THAT(tester.refresh(u""), ElementsAre("hide frmSalesman", "show startup", "spin"));
}

TEST_F(FrmSalesman, HoldsThePlaceOfItsIdentifierInSixteenBits)
{
    const Text unnamed = blotted(screen.text(), u"QXM21D");
    EXPECT_THAT(tester.refresh(withWordAt(unnamed, u"QXM21D", 32767)), ElementsAre());
    EXPECT_THAT(tester.refresh(withWordAt(unnamed, u"QXM21D", 32768)), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmSalesman, HoldsOtherPlacesInFull)
{
    tester.refresh(HostScreen(screen).replaceLine(4, Text(40000, u'X') + u":FILTERS").text());
    EXPECT_EQ(tester.title(3), u"Category: FILTERS");
}

} // namespace plotvue::test
