// The list file of the vendor inventory: a record for each row.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

RankedSession opened(TextSpan capture, int row)
{
    return {vendors, capture, row};
}

// Vendors and categories, each filled up to the 30 characters of its field.
const std::string cascade = "CASCADE                       ";
const std::string motorOil = "MOTOR OIL                     ";
const std::string tidewater = "TIDEWATER                     ";
const std::string filters = "FILTERS                       ";

TEST(VendorFiles, NameThePairAndHoldEveryPairsLines)
{
    RankedSession session = opened(twoPairs(), 2);
    EXPECT_EQ(session.file("plotvue1.txt"), "\"" + tidewater + "\",\"" + filters + "\"\r\n");
    const std::string labels = "\"OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98\",";
    EXPECT_EQ(session.file("plotvue.txt"),
              labels + "\"RANK:  1        " + cascade + "       " + motorOil +
                  "\r\","
                  "\"F:123456.7   100.5   24.9    60702    8434    9218    3467   15967\r\","
                  "\"V       10      20      30      40      50      60      70      80      90     100      "
                  " 0       8"
                  "       1\r\","
                  "\"S      100     200     300     400       0    -600     700     800     900    1000    "
                  "1100      16"
                  "      40\r\","
                  "\"P       25     -50      75     100     125     150     175     200     225     250     "
                  "275       1"
                  "      30\r\"\r\n" +
                  labels + "\"RANK:  2        " + tidewater + "       " + filters +
                  "\r\","
                  "\"F:   99.00     0.0    1.5        1       2       3       4       5\r\","
                  "\"V        1       2\r\",\"S        3       4\r\",\"P        5       6\r\"\r\n");
}

TEST(VendorFiles, ListThePairsByRank)
{
    RankedSession session =
        opened(hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y"), vendorLine(u"1", u"A", u"X")}), 1);
    const std::string file = session.file("plotvue.txt");
    EXPECT_LT(file.find("RANK:  1"), file.find("RANK:  2"));
    EXPECT_TRUE(file.starts_with("\"\",\"RANK:  1 "));
}

// A missing rank has an empty vendor and category. So its key matches the first line that is too short to
// hold them, or else the empty line after the screen's last.
TEST(VendorFiles, AMissingRankIsListedWithALineThatHasNoPair)
{
    RankedSession session = opened(hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y")}), 2);
    EXPECT_TRUE(session.file("plotvue.txt").starts_with("\"\",\"\",\"\",\"\",\"\",\"\"\r\n\"\",\"RANK:  2 "));
    EXPECT_EQ(session.subject(), u"Vendor: " + atLeft(u"B", 30));
}

TEST(VendorFiles, AShortLineServesAMissingRank)
{
    RankedSession session = opened(hostScreen({vendorTitle, u"PAGE 1", vendorLine(u"2", u"B", u"Y")}), 2);
    EXPECT_TRUE(session.file("plotvue.txt").starts_with("\"\",\"PAGE 1\r\",\"RANK:  2 "));
}

TEST(VendorFiles, TheRowOfAMissingRankOpensAnEmptyChart)
{
    RankedSession session = opened(hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y")}), 1);
    EXPECT_EQ(session.file("plotvue1.txt"), "\"\",\"\"\r\n");
    EXPECT_EQ(session.subject(), u"Vendor: ");
    EXPECT_EQ(session.drawn().series, std::vector<Numbers>{Numbers(13)});
}

TEST(VendorFiles, TheSamePairTwiceIsTheFirst)
{
    RankedSession session = opened(
        hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u"F:        1", u"V       1", u"S       1",
                    u"P", vendorLine(u"2", u"A", u"X"), u"F:        2", u"V       2", u"S       2", u"P"}),
        2);
    EXPECT_EQ(session.newest(), 1);
    EXPECT_EQ(session.file("plotvue.txt").find("RANK:  2"), std::string::npos);
}

TEST(VendorFiles, VendorAndCategoryTellAPairOnlyTogether)
{
    RankedSession session =
        opened(hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u".", u".", u"S        1", u".",
                           vendorLine(u"2", u"B", u"X"), u".", u".", u"S        2", u".",
                           vendorLine(u"3", u"A", u"Y"), u".", u".", u"S        3", u"."}),
               3);
    EXPECT_EQ(session.newest(), 3);
    session.back();
    EXPECT_EQ(session.newest(), 2);
}

TEST(VendorFiles, ACategoryThatTheLineCutsShortIsFoundAgain)
{
    RankedSession session =
        opened(hostScreen({vendorTitle, u"RANK:  1        ACME                                 OIL", u".",
                           u".", u"S        5"}),
               1);
    EXPECT_EQ(session.file("plotvue1.txt"), "\"ACME                          \",\"OIL\r\"\r\n");
    EXPECT_EQ(session.drawn().titles.at(3), u"Category: OIL\r");
    EXPECT_EQ(session.newest(), 5);
}

TEST(VendorSteps, DrawBothChartsOfThePair)
{
    RankedSession session = opened(twoPairs(), 1);
    session.chooseType(1);
    session.down();
    EXPECT_EQ(session.drawn().titles.at(1), u"Profit");
    EXPECT_EQ(session.newest(), 5);
    EXPECT_EQ(session.drawn("ChartFX2").titles.at(3), u"FIFO: $15");
    session.back();
    EXPECT_EQ(session.newest(), 25);
    EXPECT_EQ(session.drawn("ChartFX2").titles.at(3), u"FIFO: $97,788");
}

} // namespace
} // namespace plotvue::test
