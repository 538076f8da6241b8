#include "unit/ratio_fixture.h"

#include <fstream>

namespace plotvue {
namespace {

using namespace test;

constexpr Name list = "frmRatio";
constexpr Name drillDown = "frmRatioA";

struct Opened : Session {
    explicit Opened(TextSpan capture, int row = 1)
    {
        start(capture);
        clickRow(list, "MSFlexGrid1", row);
        events();
    }
    Text subject() { return chart(drillDown).titles.at(2); }
    Events press(Name button)
    {
        Session::press(drillDown, button);
        return events();
    }
};

// A ratio whose last three lines are these.
Text explained(TextSpan data, TextSpan formula, TextSpan note)
{
    return hostScreen({ratioTitle, u"1:GP  ", u"2:GP  ", u"3:", data, formula, note});
}

TEST(RatioFiles, NameTheRatioAndHoldEveryRatiosLines)
{
    Opened session(twoRatios(), 2);
    EXPECT_EQ(session.file("plotvue1.txt"), "\"DLVG\"\r\n");
    const std::string labels = "\"OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98\",";
    EXPECT_EQ(
        session.file("plotvue.txt"),
        labels +
            "\"1:CUR             1.5             2             3             4             5             6"
            "             7 \r\","
            "\"2:CUR               8            -9            10            11            12         13.25 "
            "\r\","
            "\"3:         2.00                        1.50          2.00\r\","
            "\"4: CASS 4,182,300  CLIB 2,298,000\r\",\"5: CASS / CLIB\r\",\"6: STD\r\"\r\n" +
            labels +
            "\"1:DLVG              6 \r\",\"2:DLVG  \r\","
            "\"3:            7                     6 cents       7 cents  3A:Delivery Cents per Gallon|IN "
            "CENTS"
            "\r\",\"4: DELIVERY 171,300\r\",\"5: DELIVERY / GALLONS\r\","
            "\"6: Delivery expense by the gallons delivered.\r\"\r\n");
}

TEST(RatioFiles, ARatioThatDoesNotBeginItsLineGetsTheLinesOfTheOneBefore)
{
    Opened session(hostScreen({ratioTitle}) + ratioBlock(u"AAAA") + u"9 1:BBBB\r\n");
    const std::string block = "\"\",\"1:AAAA\r\",\"2:AAAA\r\",\"3:\r\",\"4: D\r\",\"5: F\r\",\"6: N\r\"\r\n";
    EXPECT_EQ(session.file("plotvue.txt"), block + block);
}

TEST(RatioFiles, AFirstRatioThatDoesNotBeginItsLineIsARunTimeError)
{
    Session session;
    session.start(hostScreen({ratioTitle, u"9 1:BBBB"}) + ratioBlock(u"AAAA"));
    session.clickRow(list, "MSFlexGrid1", 2);
    EXPECT_TRUE(failed(session, "list"));
}

TEST(RatioFiles, TheSameCodeTwiceIsTheFirst)
{
    Opened session(hostScreen({ratioTitle, u"1:AAAA        5", u"2:AAAA", u"3:", u"4: ", u"5: ", u"6: ",
                               u"1:AAAA        7", u"2:AAAA", u"3:", u"4: ", u"5: ", u"6: "}),
                   2);
    EXPECT_EQ(session.chart(drillDown).series.at(0).at(12), 5);
}

TEST(RatioFiles, CodesAreToldApartByCaseAndBlanks)
{
    Opened session(hostScreen({ratioTitle}) + ratioBlock(u"ROE ") + ratioBlock(u"roe ") +
                       ratioBlock(u" ROE") + ratioBlock(u"RROE"),
                   3);
    EXPECT_EQ(session.file("plotvue1.txt"), "\" ROE\"\r\n");
    session.press("cmdBack");
    EXPECT_EQ(session.file("plotvue1.txt"), "\"roe \"\r\n");
    session.press("cmdNext");
    session.press("cmdNext");
    EXPECT_EQ(session.file("plotvue1.txt"), "\"RROE\"\r\n");
    EXPECT_EQ(session.subject(), u"Rolling Return on Equity");
}

TEST(RatioSteps, GoDownAndBackAndRewriteTheChosenRow)
{
    Opened session(twoRatios());
    EXPECT_EQ(session.press("cmdNext"), Events{});
    EXPECT_EQ(session.file("plotvue1.txt"), "\"DLVG\"\r\n");
    EXPECT_EQ(session.subject(), u"Delivery Cents per Gallon");
    EXPECT_EQ(session.press("cmdBack"), Events{});
    EXPECT_EQ(session.file("plotvue1.txt"), "\"CUR \"\r\n");
    EXPECT_EQ(session.subject(), u"Current Ratio");
}

TEST(RatioSteps, OnlyALineThatBeginsWithItsMarkIsTheRatio)
{
    Opened session(twoRatios());
    std::ofstream("plotvue.txt", std::ios::binary)
        << "\"\",\"9:CUR \r\",\"2:Q   \r\",\"3:\r\",\"4:\r\",\"5:\r\",\"6:\r\"\r\n"
        << "\"\",\"1:CUR \r\",\"2:CUR \r\",\"3:\r\",\"4:\r\",\"5:\r\",\"6:\r\"\r\n";
    EXPECT_EQ(session.press("cmdNext"), endOfList("frmRatioA")); // it was the second and last
}

TEST(RatioSteps, BackFromTheFirstRatioIsTheEndOfTheList)
{
    Opened session(twoRatios(), 1);
    EXPECT_EQ(session.press("cmdBack"), endOfList("frmRatioA"));
    EXPECT_TRUE(session.visible(list));
}

TEST(RatioSteps, DownFromTheLastRatioIsTheEndOfTheList)
{
    Opened session(twoRatios(), 2);
    EXPECT_EQ(session.press("cmdNext"), endOfList("frmRatioA"));
    EXPECT_FALSE(session.loaded(drillDown));
}

TEST(RatioSteps, DownToARatioCutShortIsARunTimeErrorAndNotTheEndOfTheList)
{
    Opened session(hostScreen({ratioTitle}) + ratioBlock(u"AAAA") + u"1:BBBB\r\n");
    Session& base = session;
    base.press(drillDown, "cmdNext");
    EXPECT_TRUE(failed(session, "cut off"));
}

TEST(RatioExplanations, FormulaShowsTheFormulaAndTheMonthsData)
{
    Opened session(twoRatios());
    EXPECT_EQ(session.press("cmdFormula"),
              Events{"message Formula: Formula in QXM: CASS / CLIB\r\r\rCurrent month data: "
                     "CASS 4,182,300  CLIB 2,298,000\r"});
}

TEST(RatioExplanations, TheNoteOfTheHostIsShownAsItStands)
{
    Opened session(twoRatios(), 2);
    EXPECT_EQ(session.press("cmdNote"),
              Events{"message Ratio Notes: Delivery expense by the gallons delivered.\r"});
}

TEST(RatioExplanations, FollowTheRatioThatIsShown)
{
    Opened session(twoRatios());
    session.press("cmdNext");
    EXPECT_EQ(session.press("cmdFormula"), Events{"message Formula: Formula in QXM: DELIVERY / "
                                                  "GALLONS\r\r\rCurrent month data: DELIVERY 171,300\r"});
    session.press("cmdBack");
    EXPECT_EQ(session.press("cmdNote"),
              Events{"message Ratio Notes: Ratio of short-term assets to short-term "
                     "liabilities.  A quick measure of solvency."});
}

TEST(RatioExplanations, WithoutTextsTheFormulaKeepsItsCaptions)
{
    Opened session(explained(u"4:", u"5:", u"6:")); // three characters each with the line end
    EXPECT_EQ(session.press("cmdFormula"),
              Events{"message Formula: Formula in QXM: \r\rCurrent month data: "});
    EXPECT_EQ(session.press("cmdNote"), Events{"message Ratio Notes: "});
}

TEST(RatioExplanations, TextsBeginInColumnFour)
{
    Opened session(explained(u"4:xD", u"5:yF", u"6:zN"));
    EXPECT_EQ(session.press("cmdFormula"),
              Events{"message Formula: Formula in QXM: F\r\r\rCurrent month data: D\r"});
    EXPECT_EQ(session.press("cmdNote"), Events{"message Ratio Notes: N\r"});
}

TEST(RatioExplanations, OnlyTheBareTextStdStandsForTheKnownNote)
{
    const std::string known =
        "message Ratio Notes: Profit percentage on sales, before deducting operating costs.";
    EXPECT_EQ(Opened(explained(u"4: ", u"5: ", u"6: STD")).press("cmdNote"), Events{known});
    for (const char* note : {"STD ", " STD", "std", "STD.", "ST"}) {
        const std::string text(note);
        Opened session(explained(u"4: ", u"5: ", u"6: " + Text(text.begin(), text.end())));
        EXPECT_EQ(session.press("cmdNote"), Events{"message Ratio Notes: " + text + "\r"});
    }
}

class RatioCut : public testing::TestWithParam<std::size_t> {};

// The screen ends, or holds too short a line, where the texts should stand.
TEST_P(RatioCut, AmongTheTextsIsARunTimeError)
{
    Lines lines{ratioTitle, u"1:GP  ", u"2:GP  ", u"3:", u"4: D", u"5: F", u"6: N"};
    lines.resize(GetParam());
    Session session;
    session.start(hostScreen(lines));
    EXPECT_EQ(ratioRows(session).size(), 1u);
    session.clickRow(list, "MSFlexGrid1", 1);
    EXPECT_TRUE(failed(session, "cut off"));
    EXPECT_FALSE(isShown(session, drillDown));
}

INSTANTIATE_TEST_SUITE_P(Behind, RatioCut, testing::Values(2u, 3u, 4u, 5u, 6u));

TEST(RatioTrouble, ATextLineOfTwoCharactersIsARunTimeError)
{
    for (std::size_t line = 4; line <= 6; ++line) {
        Lines lines{ratioTitle, u"1:GP  ", u"2:GP  ", u"3:", u"4:", u"5:", u"6:"};
        lines[line] = u"-";
        Session session;
        session.start(hostScreen(lines));
        session.clickRow(list, "MSFlexGrid1", 1);
        EXPECT_TRUE(failed(session, "cut off"));
    }
}

TEST(RatioTrouble, FilesThatAreDirectoriesAreARunTimeError)
{
    for (const char* file : {"plotvue.txt", "plotvue1.txt"}) {
        Session session;
        session.start(twoRatios());
        blockFile(file);
        session.clickRow(list, "MSFlexGrid1", 1);
        EXPECT_TRUE(failed(session, file));
    }
    for (const char* file : {"plotvue.txt", "plotvue1.txt"}) {
        Opened session(twoRatios(), 2);
        blockFile(file);
        static_cast<Session&>(session).press(drillDown, "cmdBack");
        EXPECT_TRUE(failed(session, file));
    }
}

} // namespace
} // namespace plotvue
