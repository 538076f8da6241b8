// The vendor list: its rows, and which lines are read into them.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

TEST(VendorList, ShowsTitleSummaryAndARowForEveryPair)
{
    RankedSession session(vendors, twoPairs());
    EXPECT_EQ(session.header("txtHeader"), u"VENDOR INVENTORY ANALYSIS");
    EXPECT_EQ(session.header("txtHeader2"), u"Total EOM 1,234,567");
    EXPECT_EQ(session.grid(vendors).columns, 5);
    EXPECT_EQ(session.grid(vendors).format,
              u"Rank |EOM FIFO |Vendor Name                                  "
              u"|Product Category                                  |Stock Months");
    const Rows rows{{u"1", u"123456.7", atLeft(u"CASCADE", 30), atLeft(u"MOTOR OIL", 30), u"   24.9"},
                    {u"2", u"99", atLeft(u"TIDEWATER", 30), atLeft(u"FILTERS", 30), u"    1.5"}};
    EXPECT_EQ(session.rows(), rows);
}

TEST(VendorList, EveryFieldHasItsColumns)
{
    const Text capture = hostScreen({
        vendorTitle,
        u"RANK:  19876541234567890123456789012345678901234567890123456789012345678901234567890123456",
        u"F:123456789012345678abcdefghijklmno",
    });
    RankedSession session(vendors, capture);
    const Texts row{u"1", u"123456789", u"345678901234567890123456789012", u"012345678901234567890123456789",
                    u"78abcde"};
    EXPECT_EQ(session.rows().at(0), row);
    // The second amount, which is read but not shown, begins in the last column of the first.
    EXPECT_EQ(readRanked(frmVendInv, capture).entry(1).numbers[1], 901234567);
}

TEST(VendorList, CountsUpToTheHighestRankAndLeavesTheMissingOnesEmpty)
{
    RankedSession session(
        vendors, hostScreen({vendorTitle, vendorLine(u"4", u"D", u"X"), vendorLine(u"2", u"B", u"Y")}));
    const Rows rows{{u"1", u"0", u"", u"", u""},
                    {u"2", u"0", atLeft(u"B", 30), atLeft(u"Y", 30), u""},
                    {u"3", u"0", u"", u"", u""},
                    {u"4", u"0", atLeft(u"D", 30), atLeft(u"X", 30), u""}};
    EXPECT_EQ(session.rows(), rows);
}

TEST(VendorList, FiguresBelongToTheRankLineBeforeThem)
{
    RankedSession session(vendors, hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y"), u"F:        2",
                                               vendorLine(u"1", u"A", u"X"), u"SEE F:    7"}));
    EXPECT_EQ(session.rows().at(0).at(1), u"0"); // columns 3 to 11 hold "E F:    7"
    EXPECT_EQ(session.rows().at(1).at(1), u"2");
}

TEST(VendorList, ALineMayOpenAPairAndGiveItsFigures)
{
    RankedSession session(vendors, hostScreen({vendorTitle, u"RANK:  1        F:  24.9 "}));
    EXPECT_EQ(session.rows().at(0).at(4), u"  24.9 ");
}

TEST(VendorList, BlankAmountsAreZero)
{
    RankedSession session(vendors, hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u"F:"}));
    EXPECT_EQ(session.rows().at(0).at(1), u"0");
    EXPECT_EQ(session.rows().at(0).at(4), u"");
}

TEST(VendorList, AThousandsCommaEndsTheAmount)
{
    RankedSession session(
        vendors, hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u"F:   12,345   1,000  2,000"}));
    EXPECT_EQ(session.rows().at(0).at(1), u"12");
}

TEST(VendorList, WithoutASummaryLineTheBoxStaysEmpty)
{
    RankedSession session(vendors, hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X")}));
    EXPECT_EQ(session.header("txtHeader2"), u"");
    EXPECT_EQ(session.rows().size(), 1u);
}

TEST(VendorList, TheLastTitleAndSummaryLinesAreShown)
{
    RankedSession session(vendors, hostScreen({u"VENDOR INVENTORY ANALYSIS", u"Total EOM 1",
                                               u"THE VENDOR INVENTED", u" Total EOM 2"}));
    EXPECT_EQ(session.header("txtHeader"), u"THE VENDOR INVENTED");
    EXPECT_EQ(session.header("txtHeader2"), u" Total EOM 2");
}

TEST(VendorList, TipsSayWhatTheListIs)
{
    RankedSession session(vendors, twoPairs());
    EXPECT_EQ(session.header("cmdTips"), u"Tips");
    session.events();
    session.press(vendors, "cmdTips");
    EXPECT_EQ(
        session.events(),
        (Events{
            "message : This is your beginning of month inventory, grouped by Vendor and Product Category. "
            " Items are\rranked by value.  The 'Stock Months' column shows the time, in months, needed to "
            "deplete\rthis inventory, based on past sales, averaged over three months."}));
}

TEST(VendorList, WithoutItsWholeTitleShowsTheStartAgain)
{
    RankedSession session(vendors, hostScreen({u"VENDOR INVENTORY REPORT", vendorLine(u"1", u"A", u"X")}));
    EXPECT_EQ(session.events(), refusing(vendors));
    EXPECT_FALSE(session.visible(vendors));
    EXPECT_EQ(session.header("txtHeader"), u"");
}

TEST(VendorList, TheSampleIsReadAsItStands)
{
    RankedSession session(vendors, sample("vendors"));
    ASSERT_EQ(session.rows().size(), 25u);
    EXPECT_EQ(session.rows().at(24), (Texts{u"25", u"3757", atLeft(u"NORTHERN FILTER COMPANY", 30),
                                            atLeft(u"MOTOR OIL", 30), u"    1.0"}));
}

} // namespace
} // namespace plotvue::test
