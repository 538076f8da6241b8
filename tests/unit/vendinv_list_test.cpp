#include "ranked/analyses.h"
#include "ranked/reading.h"
#include "unit/vendinv_fixture.h"

namespace plotvue {
namespace {

using namespace test;

TEST(VendorList, ShowsTitleSummaryAndARowForEveryPair)
{
    Session session;
    session.start(twoPairs());
    EXPECT_EQ(session.events(), listOpens("frmVendInv"));
    EXPECT_EQ(session.caption("frmVendInv"), u"PlotVue");
    EXPECT_EQ(session.text("frmVendInv", "txtHeader"), u"VENDOR INVENTORY ANALYSIS");
    EXPECT_EQ(session.text("frmVendInv", "txtHeader2"), u"Total EOM 1,234,567");
    EXPECT_EQ(session.grid("frmVendInv").rows, 3);
    EXPECT_EQ(session.grid("frmVendInv").columns, 5);
    const std::vector<Texts> rows{
        {u"1", u"123456.7", padded30(u"CASCADE"), padded30(u"MOTOR OIL"), u"   24.9"},
        {u"2", u"99", padded30(u"TIDEWATER"), padded30(u"FILTERS"), u"    1.5"}};
    EXPECT_EQ(vendorRows(session), rows);
}

TEST(VendorList, ItsHeadingsAreAsWideAsTheirTexts)
{
    Session session;
    session.start(twoPairs());
    EXPECT_EQ(session.grid("frmVendInv").format,
              u"Rank |EOM FIFO |Vendor Name                                  "
              u"|Product Category                                  |Stock Months");
}

TEST(VendorList, EveryFieldHasItsColumns)
{
    Session session;
    const Text capture = hostScreen({
        vendorTitle,
        u"RANK:  19876541234567890123456789012345678901234567890123456789012345678901234567890123456",
        u"F:123456789012345678abcdefghijklmno",
    });
    session.start(capture);
    const Texts row{u"1", u"123456789", u"345678901234567890123456789012", u"012345678901234567890123456789",
                    u"78abcde"};
    EXPECT_EQ(vendorRows(session).at(0), row);
    // The amount that is read and not shown begins in the column where the first one ends.
    EXPECT_EQ(readRanked(frmVendInv, capture).entry(1).numbers[1], 901234567);
}

TEST(VendorList, RankOneHundredIsTheLast)
{
    Session session;
    session.start(hostScreen({vendorTitle, u"RANK:1009       LAST"}));
    ASSERT_EQ(vendorRows(session).size(), 100u);
    EXPECT_EQ(vendorRows(session).at(99).at(2), u"LAST\r");
}

TEST(VendorList, CountsUpToTheHighestRankAndLeavesTheMissingOnesEmpty)
{
    Session session;
    session.start(hostScreen({vendorTitle, vendorLine(u"4", u"D", u"X"), vendorLine(u"2", u"B", u"Y")}));
    const std::vector<Texts> rows{{u"1", u"0", u"", u"", u""},
                                  {u"2", u"0", padded30(u"B"), padded30(u"Y"), u""},
                                  {u"3", u"0", u"", u"", u""},
                                  {u"4", u"0", padded30(u"D"), padded30(u"X"), u""}};
    EXPECT_EQ(vendorRows(session), rows);
}

TEST(VendorList, FiguresBelongToTheRankLineBeforeThem)
{
    Session session;
    session.start(hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y"), u"F:        2",
                              vendorLine(u"1", u"A", u"X"), u"SEE F:    7"}));
    EXPECT_EQ(vendorRows(session).at(0).at(1), u"0"); // columns 3 to 11 hold "E F:    7"
    EXPECT_EQ(vendorRows(session).at(1).at(1), u"2");
}

TEST(VendorList, ALineMayOpenAPairAndGiveItsFigures)
{
    Session session;
    session.start(hostScreen({vendorTitle, u"RANK:  1        F:  24.9 "}));
    EXPECT_EQ(vendorRows(session).at(0).at(4), u"  24.9 ");
}

TEST(VendorList, BlankAmountsAreZero)
{
    Session session;
    session.start(hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u"F:"}));
    EXPECT_EQ(vendorRows(session).at(0).at(1), u"0");
    EXPECT_EQ(vendorRows(session).at(0).at(4), u"");
}

TEST(VendorList, AThousandsCommaEndsTheAmount)
{
    Session session;
    session.start(hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u"F:   12,345   1,000  2,000"}));
    EXPECT_EQ(vendorRows(session).at(0).at(1), u"12");
}

TEST(VendorList, WithoutASummaryLineTheBoxStaysEmpty)
{
    Session session;
    session.start(hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X")}));
    EXPECT_EQ(session.text("frmVendInv", "txtHeader2"), u"");
    EXPECT_EQ(vendorRows(session).size(), 1u);
}

TEST(VendorList, TheLastTitleAndSummaryLinesAreShown)
{
    Session session;
    session.start(
        hostScreen({u"VENDOR INVENTORY ANALYSIS", u"Total EOM 1", u"THE VENDOR INVENTED", u" Total EOM 2"}));
    EXPECT_EQ(session.text("frmVendInv", "txtHeader"), u"THE VENDOR INVENTED");
    EXPECT_EQ(session.text("frmVendInv", "txtHeader2"), u" Total EOM 2");
}

TEST(VendorList, TipsSayWhatTheListIs)
{
    Session session;
    session.start(twoPairs());
    EXPECT_EQ(session.text("frmVendInv", "cmdTips"), u"Tips");
    session.events();
    session.press("frmVendInv", "cmdTips");
    EXPECT_EQ(
        session.events(),
        (Events{
            "message : This is your beginning of month inventory, grouped by Vendor and Product Category. "
            " Items are\rranked by value.  The 'Stock Months' column shows the time, in months, needed to "
            "deplete\rthis inventory, based on past sales, averaged over three months."}));
}

TEST(VendorList, ReadsFiveHundredLinesAndNoMore)
{
    Text capture = hostScreen({vendorTitle});
    for (int line = 2; line <= 499; ++line)
        capture += u".\r\n";
    Session session;
    session.start(capture + hostScreen({u"RANK:  1        A", u"RANK:  2        B"}));
    ASSERT_EQ(vendorRows(session).size(), 1u);
    EXPECT_EQ(vendorRows(session).at(0).at(2), u"A\r");
}

TEST(VendorList, WithoutItsWholeTitleShowsTheStartAgain)
{
    Session session;
    session.start(hostScreen({u"VENDOR INVENTORY REPORT", vendorLine(u"1", u"A", u"X")}));
    EXPECT_EQ(session.events(), listRefuses("frmVendInv"));
    EXPECT_FALSE(session.visible("frmVendInv"));
    EXPECT_EQ(session.text("frmVendInv", "txtHeader"), u"");
}

class VendorRank : public testing::TestWithParam<const char16_t*> {};

TEST_P(VendorRank, OutsideOneToOneHundredIsARunTimeError)
{
    Session session;
    session.start(hostScreen({vendorTitle, GetParam()}));
    EXPECT_TRUE(failed(session, "rank on the screen"));
    EXPECT_FALSE(session.visible("frmVendInv"));
}

INSTANTIATE_TEST_SUITE_P(Ranks, VendorRank,
                         testing::Values(u"RANK:  0", u"RANK:101", u"RANK: -1", u"RANK:", u"F:  1"));

TEST(VendorList, AQuoteEndsTheCapture)
{
    Session session;
    session.start(hostScreen(
        {vendorTitle, vendorLine(u"1", u"A", u"X"), u"F:        1", vendorLine(u"2", u"6\" HOSE", u"X")}));
    EXPECT_EQ(vendorRows(session).size(), 1u);
}

TEST(VendorList, TheSampleIsReadAsItStands)
{
    Session session;
    session.start(sample("vendors"));
    ASSERT_EQ(vendorRows(session).size(), 25u);
    EXPECT_EQ(vendorRows(session).at(24), (Texts{u"25", u"3757", padded30(u"NORTHERN FILTER COMPANY"),
                                                 padded30(u"MOTOR OIL"), u"    1.0"}));
}

} // namespace
} // namespace plotvue
