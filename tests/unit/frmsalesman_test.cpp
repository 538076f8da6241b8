#include "support/chartwindow.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class FrmSalesman : public testing::Test, public ChartWindow {
protected:
    FrmSalesman() : ChartWindow("frmSalesman", "salesman") { open(); }
};

TEST_F(FrmSalesman, KeepsItsRowsWhereverTheHeadingsStand)
{
    refresh(CaptureBuilder(screen).replaceLine(6, u"."));
    EXPECT_EQ(chart().labels[12], u"OCT99");

    // With the headings a line lower, the dash line is in the place of the newest month.
    EXPECT_THAT(refresh(screen.insertLine(5, u".")), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmSalesman, ShiftsEveryMonthByARowWithTheHeadings)
{
    refresh(screen.insertLine(5, u".").replaceLine(7, u"NOV99 HEADINGS A LINE LOWER"));
    EXPECT_EQ(chart().labels[12], u"NOV99");
    EXPECT_EQ(chart().labels[11], u"OCT99");
    EXPECT_EQ(chart().series[0][11], 36838.63);
    EXPECT_EQ(chart(Sales, TwoYears).labels[11], u""); // the months in the right half are a line lower, too
    EXPECT_EQ(chart().labels[10], u"S98");
}

TEST_F(FrmSalesman, CutsTheRepresentativeAndTheTextsAfterTheColons)
{
    refresh(screen.replaceLine(2, u"R:12345678").replaceLine(3, u"A:B:C ").replaceLine(4, u": X"));
    EXPECT_EQ(title(2), u"Sales Rep: 345  B:C ");
    EXPECT_EQ(title(3), u"Category:  X");
}

TEST_F(FrmSalesman, TakesTheTextsFromTheStartOfLinesWithoutAColon)
{
    refresh(screen.replaceLine(2, u"ABCDEFG").replaceLine(3, u"HALVARD OSTBY").replaceLine(4, u"MOTOR OILS"));
    EXPECT_EQ(title(2), u"Sales Rep: CDE  HALVARD OSTBY");
    EXPECT_EQ(title(3), u"Category: MOTOR OILS");
}

TEST_F(FrmSalesman, ChartsAForeignScreenIntoTheWindowThatItHides)
{
    // The months of the customer screen begin a line higher. Its characters 16 and 17 are taken for the day.
    CaptureBuilder foreign{TextSpan(sample("customer"))};
    EXPECT_EQ(refresh(foreign.put(1, 16, u"20")), left());
    EXPECT_EQ(chart().labels[12], u"AUG99");
    EXPECT_EQ(chart().series[0][12], 139888.96);
    EXPECT_NEAR(chart().series[1][12], 139888.96 * 11 / 20, 1e-6);
    EXPECT_EQ(chart().labels[1], u"SEP98");
    EXPECT_EQ(chart().labels[0], u"     ");
    EXPECT_EQ(title(2), u"Sales Rep: 442  0020450002 UNLEADED REGULAR");
    EXPECT_EQ(title(3), u"Category: MONTH   GALLONS     SALES    PROFIT"
                        u"      MONTH   GALLONS     SALES    PROFIT");
    EXPECT_FALSE(session.platform.over());
}

TEST_F(FrmSalesman, HoldsThePlaceOfItsIdentifierInSixteenBits)
{
    const Text unnamed = blotted(screen.text(), u"QXM21D");
    EXPECT_EQ(refresh(withWordAt(unnamed, u"QXM21D", 32767)), Events{});
    EXPECT_THAT(refresh(withWordAt(unnamed, u"QXM21D", 32768)), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmSalesman, HoldsOtherPlacesInFull)
{
    refresh(screen.replaceLine(4, Text(40000, u'X') + u":FILTERS"));
    EXPECT_EQ(title(3), u"Category: FILTERS");
}

} // namespace
} // namespace plotvue::test
