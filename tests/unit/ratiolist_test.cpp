// The ratio list: its rows, and which lines are read into them.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

TEST(RatioList, ShowsTitleCompanyAndARowForEveryRatio)
{
    RankedSession session(ratios, twoRatios());
    EXPECT_EQ(session.header("lblA"), u"FINANCIAL RATIO ANALYSIS");
    EXPECT_EQ(session.header("lblCompany"), u"NORTHWAY FUEL");
    EXPECT_EQ(session.grid(ratios).columns, 4);
    EXPECT_EQ(session.grid(ratios).format, u"Ratio |Ratio Name                                   "
                                           u"|Value                 |Benchmark        ");
    const Rows rows{{u"CUR ", u"Current Ratio", u"         1.50", u"         2.00"},
                    {u"DLVG", u"Delivery Cents per Gallon", u"      6 cents", u"      7 cents"}};
    EXPECT_EQ(session.rows(), rows);
}

TEST(RatioList, EveryFieldHasItsColumns)
{
    const Text capture = hostScreen({
        ratioTitle,
        u"1:GP  91234567890123499",
        u"2:AR  9",
        u"3:4567890123456789012345678901234567890123456789012345678901234567",
    });
    RankedSession session(ratios, capture);
    const Texts row{u"GP  ", u"Days Receivables", u"2345678901234", u"6789012345678"};
    EXPECT_EQ(session.rows().at(0), row);
    EXPECT_EQ(readRanked(frmRatio, capture).entry(1).numbers[0], 1234567890123.0); // columns 8 to 20
}

TEST(RatioList, ACodeWithoutItsBlanksIsUndefined)
{
    RankedSession session(ratios, hostScreen({ratioTitle, u"1:Q", u"2:Q", u"1:Q   ", u"2:Q   "}));
    EXPECT_EQ(session.rows().at(0), (Texts{u"Q\r", u"Undefined Ratio", u"", u""}));
    EXPECT_EQ(session.rows().at(1), (Texts{u"Q   ", u"Quick Ratio", u"", u""}));
}

TEST(RatioList, OnlyALineWithItsMarkerNamesTheRatio)
{
    RankedSession session(ratios,
                          hostScreen({ratioTitle, u"1:CUR ", u"2:CUR ", u"4:  1.0  3A:Loads a Day|"}));
    EXPECT_EQ(session.rows().at(0).at(1), u"Current Ratio");
}

TEST(RatioList, TheNameOfTheCodeWinsWhenItComesLater)
{
    RankedSession session(ratios,
                          hostScreen({ratioTitle, u"1:CUR ", u"3:  1.0  3A:Loads a Day|", u"2:CUR "}));
    EXPECT_EQ(session.rows().at(0).at(1), u"Current Ratio");
}

TEST(RatioList, ARatioWithoutMoreLinesHasNoName)
{
    RankedSession session(ratios, hostScreen({ratioTitle, u"1:CUR        1.5"}));
    EXPECT_EQ(session.rows().at(0), (Texts{u"CUR ", u"", u"", u""}));
}

TEST(RatioList, MarkersCountWhereverTheyStand)
{
    // The "2:" in this note counts as the marker of a ratio's second line, but columns 3 to 6 hold no known
    // code.
    RankedSession session(ratios,
                          hostScreen({ratioTitle, u"1:CUR ", u"2:CUR ", u"6: Should be 2:1 or better."}));
    EXPECT_EQ(session.rows().size(), 1u);
    EXPECT_EQ(session.rows().at(0).at(1), u"Undefined Ratio");
}

TEST(RatioList, ALineMayHoldSeveralMarkers)
{
    // The markers apply in the order "1:", "2:", "3:": they add the ratio and read its name and its values.
    RankedSession session(
        ratios, hostScreen({ratioTitle, u"1:ROE  2: 3:                  ABCDEFGHIJKLMNOPQRSTUVWXYZabcdef"}));
    EXPECT_EQ(session.rows().at(0),
              (Texts{u"ROE ", u"Return on Equity", u"ABCDEFGHIJKLM", u"OPQRSTUVWXYZa"}));
}

TEST(RatioList, ANameOfItsOwnWinsOnALineThatHasBoth)
{
    RankedSession session(ratios, hostScreen({ratioTitle, u"1:CUR ", u"2:CUR  3: 3A:Loads a Day|"}));
    EXPECT_EQ(session.rows().at(0).at(1), u"Loads a Day");
}

TEST(RatioList, TheLastTitleAndCompanyAreShown)
{
    RankedSession session(ratios, hostScreen({ratioTitle, u"COMP:A", u"THE FINANCIAL PAGE 2", u"XCOMP:B"}));
    EXPECT_EQ(session.header("lblA"), u"THE FINANCIAL PAGE 2");
    EXPECT_EQ(session.header("lblCompany"), u":B"); // from column 6 on
}

TEST(RatioList, WithoutACompanyTheLabelStaysEmpty)
{
    RankedSession session(ratios, hostScreen({ratioTitle, u"1:CUR "}));
    EXPECT_EQ(session.header("lblCompany"), u"");
}

TEST(RatioList, TheSampleIsReadAsItStands)
{
    RankedSession session(ratios, sample("ratios"));
    ASSERT_EQ(session.rows().size(), 12u);
    EXPECT_EQ(session.rows().at(5),
              (Texts{u"SEMP", u"Sales per Employee", u"       93,702", u"       95,000"}));
    EXPECT_EQ(session.rows().at(10).at(1), u"Undefined Ratio");
    EXPECT_EQ(session.rows().at(11).at(1), u"Delivery Cents per Gallon");
}

} // namespace
} // namespace plotvue::test
