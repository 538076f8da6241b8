// The files between a list and its drill-down window, and what happens when they are not there.
#include "ranked_files_fixture.h"

#include <fstream>

namespace plotvue::test {
namespace {

namespace fs = std::filesystem;

TEST_F(RankedFiles, ARecordIsTheLabelsAndFiveLines)
{
    CaptureBuilder screen(1);
    screen.put(1, 1, u"MONTH TO MONTH PROFIT ANALYSIS")
        .put(2, 1, u"Mlabel OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98")
        .put(3, 1, u"RANK:  1     10442 NORTHSIDE TRUCKING             DIESEL    ")
        .put(4, 1, u"GAIN:  1250.00       820.00       430.00")
        .put(5, 1, u"V    12345")
        .put(6, 1, u"S     9000.50")
        .put(7, 1, u"P     1250");
    session.start(screen.text());
    session.clickRow(m2m, gainsGrid, 1);
    EXPECT_EQ(session.file("plotvue1.txt"), "10442,\"DIESEL    \"\r\n");
    EXPECT_EQ(session.file("plotvue.txt"),
              "\"OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98\","
              "\"RANK:  1     10442 NORTHSIDE TRUCKING             DIESEL    \r\","
              "\"GAIN:  1250.00       820.00       430.00\r\","
              "\"V    12345\r\","
              "\"S     9000.50\r\","
              "\"P     1250\r\"\r\n");
}

TEST_F(RankedFiles, TheListHoldsTheGridThatWasClicked)
{
    const MonthToMonthScreen screen = threeEntries();
    const std::string labels = "\"" + toUtf8(monthLabels) + "\"";
    session.start(screen.text());
    session.clickRow(m2m, gainsGrid, 2);
    EXPECT_EQ(session.file("plotvue.txt"),
              labels + fields(screen, 1) + "\r\n" + labels + fields(screen, 3) + "\r\n");
    EXPECT_EQ(session.file("plotvue1.txt"), "10003,\"GROUP 3   \"\r\n");
    session.clickRow(m2m, lossesGrid, 1);
    EXPECT_EQ(session.file("plotvue.txt"), labels + fields(screen, 2) + "\r\n");
    EXPECT_EQ(session.file("plotvue1.txt"), "10002,\"GROUP 2   \"\r\n");
}

TEST_F(RankedFiles, AStepRewritesTheChosenRowOnly)
{
    openFirst();
    const std::string list = session.file("plotvue.txt");
    session.press(m2mA, "cmdNext");
    EXPECT_EQ(session.file("plotvue1.txt"), "10003,\"GROUP 3   \"\r\n");
    session.press(m2mA, "cmdBack");
    EXPECT_EQ(session.file("plotvue1.txt"), "10001,\"GROUP 1   \"\r\n");
    EXPECT_EQ(session.file("plotvue.txt"), list);
}

TEST_F(RankedFiles, LettersBeyondAsciiKeepTheirColumns)
{
    MonthToMonthScreen screen;
    screen.add(1, u"5").put(5, 20, u"CAF\u00C9 \u00C5NGSTR\u00D6M").put(5, 51, u"\u00D6L 1   ");
    session.start(screen.text());
    session.clickRow(m2m, gainsGrid, 1);
    EXPECT_EQ(session.file("plotvue1.txt"), "10001,\"\xC3\x96L 1      \"\r\n");
    EXPECT_EQ(shown(session, m2mA), u"Customer: 10001 - CAF\u00C9 \u00C5NGSTR\u00D6M" + Text(17, u' '));
    EXPECT_EQ(session.chart(m2mA).titles.at(3), u"Product: \u00D6L 1      ");
}

TEST_F(RankedFiles, TheFilesAreReadAgainForEveryDrawing)
{
    openFirst();
    const std::string list = session.file("plotvue.txt");
    std::ofstream("plotvue1.txt", std::ios::binary) << "10003,\"GROUP 3   \"\r\n";
    session.choose(m2mA, "optSales", 0);
    EXPECT_EQ(shown(session, m2mA).substr(0, 15), u"Customer: 10003");
    const std::size_t name = list.find("CUSTOMER 3");
    std::ofstream("plotvue.txt", std::ios::binary) << std::string(list).replace(name, 10, "SOMEBODY  ");
    session.choose(m2mA, "optSales", 0);
    EXPECT_EQ(shown(session, m2mA).substr(18, 8), u"SOMEBODY");
}

TEST_F(RankedFiles, TheScratchFileCannotBeWritten)
{
    blockFile("pvuscrn.txt");
    session.start(threeEntries().text());
    const Events events = session.events();
    EXPECT_TRUE(
        events.back().starts_with("error The file pvuscrn.txt in the working directory cannot be created"));
    EXPECT_EQ(events.size(), 3u);
}

TEST_F(RankedFiles, TheScratchFileIsMissing)
{
    session.platform.run([this] { session.app.window(m2m)->show(); });
    const Events events = session.events();
    EXPECT_TRUE(
        events.back().starts_with("error The file pvuscrn.txt in the working directory cannot be opened"));
}

TEST_F(RankedFiles, AnExchangeFileThatCannotBeWrittenEndsTheClick)
{
    for (const char* file : {"plotvue1.txt", "plotvue.txt"}) {
        Session other;
        other.start(threeEntries().text());
        blockFile(file);
        other.events();
        other.clickRow(m2m, gainsGrid, 1);
        const Events events = other.events();
        ASSERT_EQ(events.size(), 1u) << file;
        EXPECT_TRUE(events[0].starts_with("error The file " + std::string(file) + " ")) << events[0];
    }
}

TEST_F(RankedFiles, WithoutTheListTheTypeCannotBeChanged)
{
    openFirst();
    fs::remove("plotvue.txt");
    session.choose(m2mA, "optSales", 1);
    expectError("plotvue.txt", "cannot be opened");
}

TEST_F(RankedFiles, WithoutTheChosenRowTheTypeCannotBeChanged)
{
    openFirst();
    fs::remove("plotvue1.txt");
    session.choose(m2mA, "optSales", 1);
    expectError("plotvue1.txt", "cannot be opened");
}

TEST_F(RankedFiles, AFileThatCannotBeReadIsARunTimeError)
{
    openFirst();
    blockFile("plotvue.txt");
    session.choose(m2mA, "optSales", 1);
    expectError("plotvue.txt", "cannot be read");
}

TEST_F(RankedFiles, WithoutTheListThereIsNoWayBack)
{
    openFirst();
    fs::remove("plotvue.txt");
    session.press(m2mA, "cmdBack");
    expectError("plotvue.txt", "cannot be opened");
}

TEST_F(RankedFiles, WithoutTheListTheWayDownIsAtItsEnd)
{
    openFirst();
    fs::remove("plotvue.txt");
    session.press(m2mA, "cmdNext");
    EXPECT_EQ(session.events(), (Events{"message : End of list", "hide frmM2MpftA", "unload frmM2MpftA"}));
}

TEST_F(RankedFiles, WithoutTheChosenRowTheWayDownIsARunTimeError)
{
    openFirst();
    fs::remove("plotvue1.txt");
    session.press(m2mA, "cmdNext");
    expectError("plotvue1.txt", "cannot be opened");
}

TEST_F(RankedFiles, AChosenRowThatCannotBeReadIsARunTimeErrorOnTheWayDown)
{
    openFirst();
    blockFile("plotvue1.txt");
    session.press(m2mA, "cmdNext");
    expectError("plotvue1.txt", "cannot be read");
}

TEST_F(RankedFiles, AnEntryThatTheListDoesNotHold)
{
    for (const Name button : {"cmdBack", "cmdNext", "optSales"}) {
        Session other;
        other.start(threeEntries().text());
        other.clickRow(m2m, gainsGrid, 1);
        other.events();
        std::ofstream("plotvue1.txt", std::ios::binary) << "10009,\"GROUP 9   \"\r\n";
        button == "optSales" ? other.choose(m2mA, button, 1) : other.press(m2mA, button);
        const Events events = other.events();
        if (button == "cmdNext")
            EXPECT_EQ(events, (Events{"message : End of list", "hide frmM2MpftA", "unload frmM2MpftA"}));
        else
            EXPECT_EQ(events, Events{"error The file plotvue.txt in the working directory ends too early."});
    }
}

TEST_F(RankedFiles, TheHundredthRecordIsTakenWhenNoneBeforeItIsTheOne)
{
    openFirst();
    std::string list;
    for (int number = 1; number <= 102; ++number)
        list += "\"" + toUtf8(monthLabels) + "\"," + "\"RANK:" + toUtf8(rightAligned(digits(number), 3)) +
                "     " + std::to_string(20000 + number) + "\r\",\"\r\",\"\r\",\"\r\",\"\r\"\r\n";
    std::ofstream("plotvue.txt", std::ios::binary) << list;
    session.choose(m2mA, "optSales", 1);
    EXPECT_EQ(shown(session, m2mA).substr(0, 15), u"Customer: 20100");
    session.press(m2mA, "cmdBack");
    EXPECT_EQ(shown(session, m2mA).substr(0, 15), u"Customer: 20099");
}

} // namespace
} // namespace plotvue::test
