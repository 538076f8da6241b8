// The list file of the ratios, and the messages about the ratio that is charted.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

RankedSession opened(TextSpan capture, int row = 1)
{
    return {ratios, capture, row};
}

// The events when the button is pressed.
Events pressed(RankedSession& session, Name button)
{
    session.use(button);
    return session.events();
}

TEST(RatioFiles, NameTheRatioAndHoldEveryRatiosLines)
{
    RankedSession session = opened(twoRatios(), 2);
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
    RankedSession session = opened(hostScreen({ratioTitle}) + ratioBlock(u"AAAA") + u"9 1:BBBB\r\n");
    const std::string block = "\"\",\"1:AAAA\r\",\"2:AAAA\r\",\"3:\r\",\"4: D\r\",\"5: F\r\",\"6: N\r\"\r\n";
    EXPECT_EQ(session.file("plotvue.txt"), block + block);
}

TEST(RatioFiles, AFirstRatioThatDoesNotBeginItsLineIsARunTimeError)
{
    RankedSession session(ratios, hostScreen({ratioTitle, u"9 1:BBBB"}) + ratioBlock(u"AAAA"));
    session.click(2);
    EXPECT_TRUE(failed(session, "list"));
}

TEST(RatioFiles, TheSameCodeTwiceIsTheFirst)
{
    RankedSession session =
        opened(hostScreen({ratioTitle, u"1:AAAA        5", u"2:AAAA", u"3:", u"4: ", u"5: ", u"6: ",
                           u"1:AAAA        7", u"2:AAAA", u"3:", u"4: ", u"5: ", u"6: "}),
               2);
    EXPECT_EQ(session.newest(), 5);
}

TEST(RatioFiles, CodesAreToldApartByCaseAndBlanks)
{
    RankedSession session = opened(hostScreen({ratioTitle}) + ratioBlock(u"ROE ") + ratioBlock(u"roe ") +
                                       ratioBlock(u" ROE") + ratioBlock(u"RROE"),
                                   3);
    EXPECT_EQ(session.file("plotvue1.txt"), "\" ROE\"\r\n");
    session.back();
    EXPECT_EQ(session.file("plotvue1.txt"), "\"roe \"\r\n");
    session.down();
    session.down();
    EXPECT_EQ(session.file("plotvue1.txt"), "\"RROE\"\r\n");
    EXPECT_EQ(session.subject(), u"Rolling Return on Equity");
}

TEST(RatioSteps, OnlyALineThatBeginsWithItsMarkIsTheRatio)
{
    RankedSession session = opened(twoRatios());
    writeFile("plotvue.txt", "\"\",\"9:CUR \r\",\"2:Q   \r\",\"3:\r\",\"4:\r\",\"5:\r\",\"6:\r\"\r\n"
                             "\"\",\"1:CUR \r\",\"2:CUR \r\",\"3:\r\",\"4:\r\",\"5:\r\",\"6:\r\"\r\n");
    EXPECT_EQ(pressed(session, "cmdNext"), endOfList(session.drillDown)); // the record of "CUR " is the last
}

TEST(RatioSteps, DownToARatioCutShortIsARunTimeErrorAndNotTheEndOfTheList)
{
    RankedSession session = opened(hostScreen({ratioTitle}) + ratioBlock(u"AAAA") + u"1:BBBB\r\n");
    session.down();
    EXPECT_TRUE(failed(session, "cut off"));
}

TEST(RatioExplanations, FormulaShowsTheFormulaAndTheMonthsData)
{
    RankedSession session = opened(twoRatios());
    EXPECT_EQ(session.text(session.drillDown, "cmdFormula"), u"Formula");
    EXPECT_EQ(session.text(session.drillDown, "cmdNote"), u"Ratio Notes");
    EXPECT_EQ(pressed(session, "cmdFormula"),
              Events{"message Formula: Formula in QXM: CASS / CLIB\r\r\rCurrent month data: "
                     "CASS 4,182,300  CLIB 2,298,000\r"});
}

TEST(RatioExplanations, TheNoteOfTheHostIsShownAsItStands)
{
    RankedSession session = opened(twoRatios(), 2);
    EXPECT_EQ(pressed(session, "cmdNote"),
              Events{"message Ratio Notes: Delivery expense by the gallons delivered.\r"});
}

TEST(RatioExplanations, FollowTheRatioThatIsShown)
{
    RankedSession session = opened(twoRatios());
    session.down();
    EXPECT_EQ(pressed(session, "cmdFormula"), Events{"message Formula: Formula in QXM: DELIVERY / "
                                                     "GALLONS\r\r\rCurrent month data: DELIVERY 171,300\r"});
    session.back();
    EXPECT_EQ(pressed(session, "cmdNote"),
              Events{"message Ratio Notes: Ratio of short-term assets to short-term "
                     "liabilities.  A quick measure of solvency."});
}

TEST(RatioExplanations, WithoutTextsTheFormulaKeepsItsCaptions)
{
    // Lines of three characters, with the carriage return, are the shortest that can be read.
    RankedSession session = opened(explained(u"4:", u"5:", u"6:"));
    EXPECT_EQ(pressed(session, "cmdFormula"),
              Events{"message Formula: Formula in QXM: \r\rCurrent month data: "});
    EXPECT_EQ(pressed(session, "cmdNote"), Events{"message Ratio Notes: "});
}

TEST(RatioExplanations, TextsBeginInColumnFour)
{
    RankedSession session = opened(explained(u"4:xD", u"5:yF", u"6:zN"));
    EXPECT_EQ(pressed(session, "cmdFormula"),
              Events{"message Formula: Formula in QXM: F\r\r\rCurrent month data: D\r"});
    EXPECT_EQ(pressed(session, "cmdNote"), Events{"message Ratio Notes: N\r"});
}

TEST(RatioExplanations, OnlyTheBareTextStdStandsForTheKnownNote)
{
    const std::string known =
        "message Ratio Notes: Profit percentage on sales, before deducting operating costs.";
    RankedSession bare = opened(explained(u"4: ", u"5: ", u"6: STD"));
    EXPECT_EQ(pressed(bare, "cmdNote"), Events{known});
    for (const char* note : {"STD ", " STD", "std", "STD.", "ST"}) {
        const std::string text(note);
        RankedSession session = opened(explained(u"4: ", u"5: ", u"6: " + Text(text.begin(), text.end())));
        EXPECT_EQ(pressed(session, "cmdNote"), Events{"message Ratio Notes: " + text + "\r"});
    }
}

TEST(RatioExplanations, ThatAreCutOffAreARunTimeError)
{
    const Lines whole{ratioTitle, u"1:GP  ", u"2:GP  ", u"3:", u"4: D", u"5: F", u"6: N"};
    std::vector<Lines> screens;
    for (std::size_t lines = 2; lines < whole.size(); ++lines)
        screens.emplace_back(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(lines));
    for (std::size_t line = 4; line <= 6; ++line)
        screens.emplace_back(whole)[line] = u"-"; // too short: two characters with the carriage return
    for (const Lines& lines : screens) {
        RankedSession session(ratios, hostScreen(lines));
        EXPECT_EQ(session.rows().size(), 1u);
        session.click(1);
        EXPECT_TRUE(failed(session, "cut off"));
        EXPECT_FALSE(session.loaded(session.drillDown) && session.visible(session.drillDown));
    }
}

} // namespace
} // namespace plotvue::test
