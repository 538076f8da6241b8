#include "unit/vendinv_fixture.h"

namespace plotvue {
namespace {

using namespace test;

constexpr Name list = "frmVendInv";
constexpr Name drillDown = "frmVendInvA";

struct Opened : Session {
    explicit Opened(TextSpan capture, int row)
    {
        start(capture);
        clickRow(list, "MSFlexGrid1", row);
        events();
    }
    Text subject() { return chart(drillDown).titles.at(2); }
};

// Thirty characters each.
const std::string cascade = "CASCADE                       ";
const std::string motorOil = "MOTOR OIL                     ";
const std::string tidewater = "TIDEWATER                     ";
const std::string filters = "FILTERS                       ";

TEST(VendorFiles, NameThePairAndHoldEveryPairsLines)
{
    Opened session(twoPairs(), 2);
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
    Opened session(hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y"), vendorLine(u"1", u"A", u"X")}), 1);
    const std::string file = session.file("plotvue.txt");
    EXPECT_LT(file.find("RANK:  1"), file.find("RANK:  2"));
    EXPECT_TRUE(file.starts_with("\"\",\"RANK:  1 "));
}

// An empty vendor and an empty category stand on the first line that is too short for both, at the latest
// behind the last line of the screen.
TEST(VendorFiles, AMissingRankIsListedWithALineThatHasNoPair)
{
    Opened session(hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y")}), 2);
    EXPECT_TRUE(session.file("plotvue.txt").starts_with("\"\",\"\",\"\",\"\",\"\",\"\"\r\n\"\",\"RANK:  2 "));
    EXPECT_EQ(session.subject(), u"Vendor: " + padded30(u"B"));
}

TEST(VendorFiles, AShortLineServesAMissingRank)
{
    Opened session(hostScreen({vendorTitle, u"PAGE 1", vendorLine(u"2", u"B", u"Y")}), 2);
    EXPECT_TRUE(session.file("plotvue.txt").starts_with("\"\",\"PAGE 1\r\",\"RANK:  2 "));
}

TEST(VendorFiles, TheRowOfAMissingRankOpensAnEmptyChart)
{
    Opened session(hostScreen({vendorTitle, vendorLine(u"2", u"B", u"Y")}), 1);
    EXPECT_EQ(session.file("plotvue1.txt"), "\"\",\"\"\r\n");
    EXPECT_EQ(session.subject(), u"Vendor: ");
    EXPECT_EQ(session.chart(drillDown).series, std::vector<Numbers>{Numbers(13)});
}

TEST(VendorFiles, TheSamePairTwiceIsTheFirst)
{
    Opened session(
        hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u"F:        1", u"V       1", u"S       1",
                    u"P", vendorLine(u"2", u"A", u"X"), u"F:        2", u"V       2", u"S       2", u"P"}),
        2);
    EXPECT_EQ(session.chart(drillDown).series.at(0).at(12), 1);
    EXPECT_EQ(session.file("plotvue.txt").find("RANK:  2"), std::string::npos);
}

TEST(VendorFiles, VendorAndCategoryTellAPairOnlyTogether)
{
    Opened session(hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), u".", u".", u"S        1", u".",
                               vendorLine(u"2", u"B", u"X"), u".", u".", u"S        2", u".",
                               vendorLine(u"3", u"A", u"Y"), u".", u".", u"S        3", u"."}),
                   3);
    EXPECT_EQ(session.chart(drillDown).series.at(0).at(12), 3);
    session.press(drillDown, "cmdBack");
    EXPECT_EQ(session.chart(drillDown).series.at(0).at(12), 2);
}

TEST(VendorFiles, ACategoryThatTheLineCutsShortIsFoundAgain)
{
    Opened session(hostScreen({vendorTitle, u"RANK:  1        ACME                                 OIL", u".",
                               u".", u"S        5"}),
                   1);
    EXPECT_EQ(session.file("plotvue1.txt"), "\"ACME                          \",\"OIL\r\"\r\n");
    EXPECT_EQ(session.chart(drillDown).titles.at(3), u"Category: OIL\r");
    EXPECT_EQ(session.chart(drillDown).series.at(0).at(12), 5);
}

TEST(VendorSteps, GoDownAndBackAndKeepTheDataType)
{
    Opened session(twoPairs(), 1);
    session.choose(drillDown, "optSales", 1);
    session.press(drillDown, "cmdNext");
    EXPECT_EQ(session.file("plotvue1.txt"), "\"" + tidewater + "\",\"" + filters + "\"\r\n");
    EXPECT_EQ(session.subject(), u"Vendor: " + padded30(u"TIDEWATER"));
    EXPECT_EQ(session.chart(drillDown).titles.at(1), u"Profit");
    EXPECT_EQ(session.chart(drillDown).series.at(0).at(12), 5);
    EXPECT_EQ(session.chart(drillDown, "ChartFX2").titles.at(3), u"FIFO: $15");
    session.press(drillDown, "cmdBack");
    EXPECT_EQ(session.file("plotvue1.txt"), "\"" + cascade + "\",\"" + motorOil + "\"\r\n");
    EXPECT_EQ(session.chart(drillDown).series.at(0).at(12), 25);
    EXPECT_EQ(session.events(), Events{});
}

TEST(VendorSteps, BackFromTheFirstPairIsTheEndOfTheList)
{
    Opened session(twoPairs(), 1);
    session.press(drillDown, "cmdBack");
    EXPECT_EQ(session.events(), endOfList("frmVendInvA"));
    EXPECT_TRUE(session.visible(list));
}

TEST(VendorSteps, DownFromTheLastPairIsTheEndOfTheList)
{
    Opened session(twoPairs(), 2);
    session.press(drillDown, "cmdNext");
    EXPECT_EQ(session.events(), endOfList("frmVendInvA"));
    EXPECT_FALSE(session.loaded(drillDown));
}

TEST(VendorSteps, AWindowOpenedAgainBeginsWithSales)
{
    Opened session(twoPairs(), 1);
    session.choose(drillDown, "optSales", 3);
    session.press(drillDown, "cmdExit");
    session.clickRow(list, "MSFlexGrid1", 2);
    EXPECT_EQ(session.options(drillDown, "optSales").chosen, std::vector<int>{0});
    EXPECT_EQ(session.chart(drillDown).titles.at(1), u"Sales");
}

TEST(VendorSteps, ASecondClickShowsItsPairAtTheNextDataType)
{
    Opened session(twoPairs(), 1);
    session.clickRow(list, "MSFlexGrid1", 2);
    EXPECT_EQ(session.subject(), u"Vendor: " + padded30(u"CASCADE"));
    session.choose(drillDown, "optSales", 2);
    EXPECT_EQ(session.subject(), u"Vendor: " + padded30(u"TIDEWATER"));
}

TEST(VendorTrouble, FilesThatCannotBeWrittenAreARunTimeError)
{
    for (const char* file : {"plotvue.txt", "plotvue1.txt"}) {
        Session session;
        session.start(twoPairs());
        blockFile(file);
        session.clickRow(list, "MSFlexGrid1", 1);
        EXPECT_TRUE(failed(session, file));
    }
}

TEST(VendorTrouble, FilesThatAreGoneAreARunTimeErrorForADataType)
{
    for (const char* file : {"plotvue.txt", "plotvue1.txt"}) {
        Opened session(twoPairs(), 1);
        std::filesystem::remove(file);
        session.choose(drillDown, "optSales", 1);
        EXPECT_TRUE(failed(session, file));
    }
}

TEST(VendorTrouble, AScratchFileThatCannotBeReadIsARunTimeError)
{
    Session session;
    session.start(u"VENDOR INVENTORY"); // not enough for the list, which goes back to the start
    session.copy(twoPairs());
    session.platform.listener = [&, before = session.platform.listener](const Event& event) {
        if (event.kind == Event::Kind::Load)
            blockFile("pvuscrn.txt");
        before(event);
    };
    session.press("startup", "Command1");
    EXPECT_TRUE(failed(session, "pvuscrn.txt"));
}

} // namespace
} // namespace plotvue
