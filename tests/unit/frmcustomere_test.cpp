#include "app/screens.h"
#include "support/capturebuilder.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

using testing::ElementsAre;
using testing::StartsWith;

INSTANTIATE_TEST_SUITE_P(FrmCustomerE, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmCustomerE,
                             .sample = "customer",
                             .newestLine = 6,
                             .dayLine = 1,
                             .dayColumn = 69,
                             .days = 30,
                             .day = 20,
                             .percent = quotientTimesHundred,
                             .periods = {u"12 Month", u"24 Month", u"6 Month"},
                             .types = {u"Sales", u"Profit", u"Volume", u"GP %", u"G/P Units"},
                         }));

class FrmCustomerE : public testing::Test {
protected:
    FrmCustomerE() { tester.start(screen.text()); }

    HostScreen screen{sample("customer")};
    HistoryTester tester{"frmCustomerE"};
};

TEST_F(FrmCustomerE, NamesTheCustomerAndTheProduct)
{
    EXPECT_EQ(tester.title(2), u"Customer: 104420 GREENWATER BROS HAULING INC.");
    EXPECT_EQ(tester.title(3), u"Product: 0020450002");
}

TEST_F(FrmCustomerE, ReadsTheNewestMonthFromLine6AndThe14thFromLine7)
{
    tester.choose(Volume, Months24);
    const Chart chart = tester.chart();
    EXPECT_EQ(chart.series[0][24], 101728.55);
    EXPECT_EQ(chart.series[0][11], 158825.34);
    EXPECT_EQ(chart.series[0][0], 126728.06);
    EXPECT_EQ(chart.labels[24], u"S99");
    EXPECT_EQ(chart.labels[11], u"A98");
    EXPECT_EQ(chart.labels[0], u"S97");
    EXPECT_NEAR(chart.series[1][24], 50864.275, 1e-6); // 10 of 30 days are still to come
}

TEST_F(FrmCustomerE, CutsLongNames)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"CUSTOMER:ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    changed.replaceLine(3, u"PRODUCT:ABCDEFGHIJKLM");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"Customer: ABCDEFGHIJKLMNOPQRSTUVWXYZ012345678");
    EXPECT_EQ(tester.title(3), u"Product: ABCDEFGHIJ");
}

TEST_F(FrmCustomerE, KeepsTheLineEndBehindShortNames)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"CUSTOMER: SHORT:CO").replaceLine(3, u"PRODUCT:12");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"Customer:  SHORT:CO\r");
    EXPECT_EQ(tester.title(3), u"Product: 12\r");
}

TEST_F(FrmCustomerE, TakesTheNamesFromTheStartOfLinesWithoutAColon)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789").replaceLine(3, u"PRODUCT 0020");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"Customer: ABCDEFGHIJKLMNOPQRSTUVWXYZ012345678");
    EXPECT_EQ(tester.title(3), u"Product: PRODUCT 00");
}

TEST_F(FrmCustomerE, IsLeftWhenItsIdentifierIsAbsent)
{
    tester.expectRefusal(sample("salesman"));
    tester.expectRefusal(blotted(screen.text(), u"QXM12E1") + u"qxm12e1");
    tester.expectRefusal(u"");
}

TEST_F(FrmCustomerE, HoldsThePlaceOfItsIdentifierInSixteenBits)
{
    const Text unnamed = blotted(screen.text(), u"QXM12E1");
    EXPECT_THAT(tester.refresh(withWordAt(unnamed, u"QXM12E1", 32767)), ElementsAre());
    EXPECT_THAT(tester.refresh(withWordAt(unnamed, u"QXM12E1", 32768)), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmCustomerE, HoldsOtherPlacesInFull)
{
    tester.refresh(HostScreen(screen).replaceLine(3, Text(40000, u'X') + u":0020450002").text());
    EXPECT_EQ(tester.title(3), u"Product: 0020450002");
}

} // namespace plotvue::test
