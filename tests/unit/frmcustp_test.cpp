#include "app/screens.h"
#include "support/capturebuilder.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

using testing::ElementsAre;
using testing::StartsWith;

INSTANTIATE_TEST_SUITE_P(FrmCustP, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmCustP,
                             .sample = "custcat",
                             .newestLine = 6,
                             .dayLine = 1,
                             .dayColumn = 8,
                             .days = 28,
                             .day = 9,
                             .percent = quotientTimesHundred,
                             .periods = {u"12 Month", u"24 Month", u"6 Month"},
                             .types = {u"Sales", u"Profit", u"Volume", u"GP %", u"G/P Units"},
                         }));

class FrmCustP : public testing::Test {
protected:
    FrmCustP() { tester.start(screen.text()); }

    // The sample with its "PCAT", a word of four letters, moved to a position of the text.
    Text withCategoryAt(std::size_t position) const
    {
        return blotted(screen.text(), u"PCAT").replace(position - 1, 4, u"PCAT");
    }

    HostScreen screen{sample("custcat")};
    HistoryTester tester{"frmCustP"};
};

TEST_F(FrmCustP, NamesTheCustomerAndTheCategory)
{
    EXPECT_EQ(tester.title(2), u"Customer: 104420 GREENWATER BROS HAULING INC.");
    EXPECT_EQ(tester.title(3), u"Category: LUBRICANTS");
}

TEST_F(FrmCustP, ChartsItsSample)
{
    tester.choose(Profit, Months24);
    const Chart chart = tester.chart();
    EXPECT_EQ(chart.series[0][24], 5083.72);
    EXPECT_EQ(chart.series[0][11], 9839.33);
    EXPECT_EQ(chart.series[0][0], 10423.02);
    EXPECT_EQ(chart.labels[24], u"F00");
    EXPECT_EQ(chart.labels[11], u"J99");
    EXPECT_EQ(chart.labels[0], u"F98");
    EXPECT_NEAR(chart.series[1][24], 5083.72 * 19 / 9, 1e-6); // 19 of 28 days are still to come
}

TEST_F(FrmCustP, TakesTheWholeCustomerButTheLineEnd)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"CUSTOMER: A:B, THE LONGEST NAME THAT THE HOST HAS EVER HAD TO PRINT IN A LINE ");
    changed.replaceLine(3, u"PCAT:ABC").put(20, 1, u"YTD");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2),
              u"Customer:  A:B, THE LONGEST NAME THAT THE HOST HAS EVER HAD TO PRINT IN A LINE ");
    EXPECT_EQ(tester.title(3), u"Category: ABC\r");
}

TEST_F(FrmCustP, TakesTheTextsFromTheStartOfLinesWithoutAColon)
{
    HostScreen changed(screen);
    changed.replaceLine(2, u"GREENWATER BROS").replaceLine(3, u"LUBRICANTS YTD");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(2), u"Customer: GREENWATER BROS");
    EXPECT_EQ(tester.title(3), u"Category: LUBRICANTS");
}

TEST_F(FrmCustP, IsLeftWhenAWordOfItsScreenIsAbsent)
{
    tester.expectRefusal(blotted(screen.text(), u"YTD"));
    tester.expectRefusal(blotted(screen.text(), u"QTY"));
    tester.expectRefusal(blotted(screen.text(), u"QXM12P"));
    tester.expectRefusal(blotted(screen.text(), u"YTD") + u"ytd");
    tester.expectRefusal(blotted(screen.text(), u"QTY") + u"Qty");
    tester.expectRefusal(blotted(screen.text(), u"QXM12P") + u"qxm12p");
    tester.expectRefusal(u"");
}

TEST_F(FrmCustP, HidesItselfAtOnceWhenAWordIsAbsent)
{
    for (const TextSpan word : {u"YTD", u"QTY"}) {
        HistoryTester refused("frmCustP");
        refused.start(blotted(screen.text(), word));
        EXPECT_THAT(refused.session.events(), ElementsAre("load startup", "show startup", "hide startup",
                                                          "load frmCustP", "show startup"));
        EXPECT_FALSE(refused.session.visible("frmCustP"));
        EXPECT_TRUE(refused.chart().series.empty());
    }
}

TEST_F(FrmCustP, RefusesACategoryFrom501On)
{
    EXPECT_THAT(tester.refresh(withCategoryAt(500)), ElementsAre());
    tester.expectRefusal(withCategoryAt(501));
    tester.expectRefusal(withCategoryAt(1500));
}

TEST_F(FrmCustP, AcceptsACategoryThatIsAbsentOrComesAgain)
{
    EXPECT_THAT(tester.refresh(blotted(screen.text(), u"PCAT")), ElementsAre());
    EXPECT_THAT(tester.refresh(screen.text() + u"PCAT:FUELS\r\n"), ElementsAre());
}

TEST_F(FrmCustP, AcceptsTheScreenOfACustomersPack)
{
    // The day is then the blank behind the longer identifier and the first of two digits.
    HostScreen pack(screen);
    pack.put(1, 1, u"QXM12P2 24FEB00").put(6, 1, u"FEB00");
    EXPECT_THAT(tester.refresh(pack.text()), ElementsAre());
    EXPECT_EQ(tester.title(2), u"Customer: 104420 GREENWATER BROS HAULING INC.");
    EXPECT_EQ(tester.chart().series[0][12], 26295.09);
    EXPECT_NEAR(tester.chart().series[1][12], 26295.09 * 26 / 2, 1e-6);

    // That screen's rows begin a line lower: its dash line is taken for the newest month.
    EXPECT_THAT(tester.refresh(sample("custpack")), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmCustP, HoldsThePlacesOfItsWordsInSixteenBits)
{
    for (const TextSpan word : {u"YTD", u"QTY", u"QXM12P"}) {
        const Text wordless = blotted(screen.text(), word);
        HistoryTester own("frmCustP");
        own.start(screen.text());
        EXPECT_THAT(own.refresh(withWordAt(wordless, word, 32767)), ElementsAre());
        EXPECT_THAT(own.refresh(withWordAt(wordless, word, 32768)), ElementsAre(StartsWith("error ")));
    }
    // A category so far down fails before it can be refused.
    const Text uncategorised = blotted(screen.text(), u"PCAT");
    tester.expectRefusal(withWordAt(uncategorised, u"PCAT", 32767));
    EXPECT_THAT(tester.refresh(withWordAt(uncategorised, u"PCAT", 32768)), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmCustP, LooksForItsWordsInTheirOrder)
{
    // The first word that is absent ends the search, before a later one is found too far down to be held.
    tester.expectRefusal(withWordAt(blotted(blotted(screen.text(), u"YTD"), u"QTY"), u"QTY", 32768));
    tester.expectRefusal(withWordAt(blotted(blotted(screen.text(), u"QTY"), u"PCAT"), u"PCAT", 32768));
    tester.expectRefusal(withWordAt(blotted(withCategoryAt(501), u"QXM12P"), u"QXM12P", 32768));
}

TEST_F(FrmCustP, HoldsThePlacesOfColonsInSixteenBits)
{
    const auto colonAt = [&](int line, std::size_t column) {
        HostScreen changed(screen);
        changed.put(1, 17, u"YTD QTY")
            .replaceLine(3, u"LUBRICANTS")
            .replaceLine(line, Text(column - 1, u'X') + u":NAME");
        return changed.text();
    };
    for (const int line : {2, 3}) {
        HistoryTester own("frmCustP");
        own.start(screen.text());
        EXPECT_THAT(own.refresh(colonAt(line, 32767)), ElementsAre());
        EXPECT_TRUE(own.title(line).starts_with(line == 2 ? u"Customer: NAME" : u"Category: NAME"));
        EXPECT_THAT(own.refresh(colonAt(line, 32768)), ElementsAre(StartsWith("error ")));
    }
}

} // namespace plotvue::test
