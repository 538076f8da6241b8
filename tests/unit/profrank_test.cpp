// Ranked profit: what differs from the month-to-month windows.
#include "profit_fixture.h"

#include <algorithm>

namespace plotvue::test {
namespace {

class RankedProfit : public testing::Test {
protected:
    Session session;

    void start(const CaptureBuilder& capture) { session.start(capture.text()); }

    Numbers components(int row)
    {
        session.clickRow(profRank, gainsGrid, row);
        const auto series = session.chart(profRankA, "ChartFX2").series;
        session.press(profRankA, "cmdExit");
        return {series.at(0).at(0), series.at(1).at(0)};
    }
};

TEST_F(RankedProfit, ItsControls)
{
    start(RankedProfitScreen().add(1, u"5"));
    EXPECT_EQ(session.events(), opening(profRank));
    EXPECT_EQ(session.caption(profRank), u"PlotVue");
    EXPECT_EQ(controlsOf(session, profRank),
              (Texts{u"MSFlexGrid1", u"cmdExit", u"cmdPrint", u"txtHeader", u"txtL2", u"txtL3"}));
    EXPECT_EQ(session.text(profRank, "cmdExit"), u"Exit");
    EXPECT_FALSE(frmProfRank.grids[0].picture);
    session.clickRow(profRank, gainsGrid, 1);
    EXPECT_EQ(session.caption(profRankA), u"PlotVue");
    EXPECT_EQ(controlsOf(session, profRankA), (Texts{u"ChartFX1", u"ChartFX2", u"cmdBack", u"cmdExit",
                                                     u"cmdNext", u"cmdPrint", u"optSales"}));
    EXPECT_EQ(session.text(profRankA, "cmdBack"), u"");
    EXPECT_EQ(session.text(profRankA, "cmdNext"), u"Down");
    EXPECT_EQ(session.text(profRankA, "cmdExit"), u"Close");
    EXPECT_EQ(captions(session.options(profRankA, "optSales")),
              (Texts{u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"}));
}

TEST_F(RankedProfit, ListsThePositiveProfits)
{
    RankedProfitScreen screen;
    start(screen.add(1, u"1842.50").add(2, u"30").add(3, u"-4"));
    const Grid grid = session.grid(profRank);
    EXPECT_EQ(grid.format,
              u"Rank |Profit (current)|Customer|Customer Name" + Text(38, u' ') + u"|Product Group  ");
    EXPECT_EQ(grid.columns, 5);
    const Text blanks(20, u' ');
    EXPECT_EQ(grid.cells,
              (std::vector<Texts>{{u"1", u"1842.5", u"10001", u"CUSTOMER 1" + blanks, u"GROUP 1   "},
                                  {u"2", u"30", u"10002", u"CUSTOMER 2" + blanks, u"GROUP 2   "}}));
    const Text text = screen.text();
    const RankedReading reading = readRanked(frmProfRank, text);
    EXPECT_EQ(reading.counts[profit::gains], 2);
    EXPECT_EQ(reading.counts[profit::losses], 1);
}

TEST_F(RankedProfit, AProfitOfZeroTakesTheRowOfTheLast)
{
    start(RankedProfitScreen().add(1, u"30").add(2, u"0").add(3, u"10"));
    EXPECT_EQ(customers(session, profRank), (Texts{u"10001", u"10002"}));
}

TEST_F(RankedProfit, ALossBetweenProfitsIsPassedOver)
{
    start(RankedProfitScreen().add(1, u"30").add(2, u"-5").add(3, u"10"));
    EXPECT_EQ(customers(session, profRank), (Texts{u"10001", u"10003"}));
    session.clickRow(profRank, gainsGrid, 1);
    session.press(profRankA, "cmdNext");
    EXPECT_EQ(shown(session, profRankA).substr(0, 15), u"Customer: 10003");
    session.events();
    session.press(profRankA, "cmdNext");
    EXPECT_EQ(session.events(),
              (Events{"message : End of list", "hide frmProfRankA", "unload frmProfRankA"}));
    session.clickRow(profRank, gainsGrid, 1);
    session.events();
    session.press(profRankA, "cmdBack");
    EXPECT_EQ(session.events(),
              (Events{"message : End of list", "hide frmProfRankA", "unload frmProfRankA"}));
}

TEST_F(RankedProfit, SaysWhatTheTerritoryGained)
{
    RankedProfitScreen screen;
    screen.add(1, u"5").put(totalsLine, 1, u"Mprofit   8000.75 9 -9250.25");
    start(screen);
    // The 9 stands in column 20, where only the month-to-month screen reads.
    EXPECT_EQ(session.text(profRank, "txtL2"),
              u"Total profit for the territory increased by  17251 (from -9251 to  8000).");
    EXPECT_EQ(session.text(profRank, "txtHeader"), u"RANKED PROFIT ANALYSIS");
    EXPECT_EQ(session.text(profRank, "txtL3"), u"FOR SALES REP 014");
}

TEST_F(RankedProfit, AHeadingNeedNotBeTheTitle)
{
    RankedProfitScreen screen;
    screen.add(1, u"5").put(2, 1, u"RANKED PROF. FOR OCTOBER");
    start(screen);
    EXPECT_EQ(session.text(profRank, "txtHeader"), u"RANKED PROF. FOR OCTOBER");
}

TEST_F(RankedProfit, ALineMayOpenAnEntryAndGiveItsComponents)
{
    const Text text = CaptureBuilder(2)
                          .put(1, 1, u"RANKED PROFIT AN")
                          .put(2, 1, u"RANK:  2")
                          .put(2, 18, u"1234567890123456789012345 GAIN:")
                          .text();
    const RankedReading reading = readRanked(frmProfRank, text);
    EXPECT_EQ(reading.entry(2).numbers[profit::volumePart], 234567890); // columns 19 to 27
    EXPECT_EQ(reading.entry(2).numbers[profit::marginPart], 567890123); // columns 32 to 40
}

TEST_F(RankedProfit, ANameIsNoComponentLineInTheChart)
{
    CaptureBuilder screen(4);
    screen.put(1, 1, u"RANKED PROFIT AN")
        .put(2, 1, u"RANK:  1;    10001 55 SHOP: MAIN ROAD")
        .put(2, 60, u" ");
    start(screen);
    EXPECT_EQ(components(1), (Numbers{0, 0}));
}

TEST_F(RankedProfit, ARecordIsTheLabelsAndFiveLines)
{
    start(RankedProfitScreen().add(1, u"5").add(2, u"4"));
    session.clickRow(profRank, gainsGrid, 1);
    const std::string list = session.file("plotvue.txt");
    const std::string record = list.substr(0, list.find("\r\n"));
    EXPECT_EQ(std::count(record.begin(), record.end(), '"'), 2 * 6);
}

TEST_F(RankedProfit, AComponentLineOfEitherKindIsShown)
{
    RankedProfitScreen screen;
    screen.add(1, u"50", u"8", u"-3").add(2, u"40", u"6", u"7");
    start(screen);
    EXPECT_EQ(components(1), (Numbers{8, -3}));
    EXPECT_EQ(components(2), (Numbers{6, 7}));
}

// An entry with both lines: the block of five then ends with the sales.
CaptureBuilder withBothLines(bool profitLast)
{
    RankedProfitScreen screen;
    screen.add(1, u"50", u"8", u"-3");
    const std::size_t profitLine = profitLast ? 7 : 6, gainLine = profitLast ? 6 : 7;
    screen.put(6, 1, Text(106, u' ')).put(7, 1, Text(106, u' '));
    screen.put(profitLine, 1, u"P:          50").put(profitLine, 27, u"8").put(profitLine, 39, u"-3");
    screen.put(gainLine, 1, u"GAIN:      -99").put(gainLine, 26, u"11").put(gainLine, 39, u"22");
    return screen;
}

TEST_F(RankedProfit, OfTwoComponentLinesTheLaterIsShown)
{
    start(withBothLines(true));
    EXPECT_EQ(customers(session, profRank), Texts{u"10001"});
    EXPECT_EQ(components(1), (Numbers{8, -3}));
    session.press(profRank, "cmdExit");
    session.copy(withBothLines(false).text());
    session.press("startup", "Command1");
    EXPECT_EQ(session.grid(profRank).cells[0][1], u"50");
    EXPECT_EQ(components(1), (Numbers{11, 22}));
}

TEST_F(RankedProfit, TheLaterComponentLineIsKeptOfTheEntryToo)
{
    for (const bool profitLast : {true, false}) {
        const Text text = withBothLines(profitLast).text();
        const RankedReading reading = readRanked(frmProfRank, text);
        EXPECT_EQ(reading.entry(1).numbers[profit::figure], 50);
        EXPECT_EQ(reading.entry(1).numbers[profit::volumePart], profitLast ? 8 : 11);
        EXPECT_EQ(reading.entry(1).numbers[profit::marginPart], profitLast ? -3 : 22);
        EXPECT_EQ(reading.counts, (std::array{1, 0}));
    }
}

TEST_F(RankedProfit, WithoutAComponentLineTheSecondLineIsShown)
{
    // Rank 1 is not on the screen: its row has neither number nor group, and leads to the screen's first
    // line.
    RankedProfitScreen screen;
    screen.add(2, u"50", u"8", u"-3").put(2, 27, u"7").put(2, 39, u"-2").put(2, 50, u" ");
    start(screen);
    EXPECT_EQ(customers(session, profRank), Texts{u"0"});
    EXPECT_EQ(components(1), (Numbers{7, -2}));
}

TEST_F(RankedProfit, AGainLineAloneCountsNothing)
{
    RankedProfitScreen screen;
    screen.add(1, u"50").put(6, 1, u"GAIN:");
    start(screen);
    EXPECT_EQ(session.grid(profRank).rows, 1);
}

TEST_F(RankedProfit, AnyLineWithPAndAColonIsAProfitLine)
{
    RankedProfitScreen screen;
    screen.add(1, u"50").add(2, u"40").put(14, 1, u"P     -7 STEP:");
    start(screen);
    // The second entry's profit is now -7; what it counted before stays counted.
    const Text text = screen.text();
    EXPECT_EQ(readRanked(frmProfRank, text).entry(2).numbers[profit::figure], -7);
    EXPECT_EQ(customers(session, profRank), (Texts{u"10001", u"0"}));
}

TEST_F(RankedProfit, ChartsItsMonths)
{
    start(RankedProfitScreen().add(1, u"50", u"8", u"-3").add(2, u"40"));
    session.clickRow(profRank, gainsGrid, 2);
    EXPECT_EQ(session.chart(profRankA).series,
              (std::vector<Numbers>{{33, 32, 31, 30, 29, 28, 27, 26, 25, 24, 23, 22, 21}}));
    EXPECT_EQ(session.chart(profRankA).titles,
              (std::map<int, Text>{{1, u"Sales"},
                                   {2, u"Customer: 10002 - CUSTOMER 2" + Text(20, u' ')},
                                   {3, u"Product: GROUP 2   "}}));
    session.press(profRankA, "cmdBack");
    const Chart parts = session.chart(profRankA, "ChartFX2");
    EXPECT_EQ(parts.titles, (std::map<int, Text>{{2, u"Volume/Margin components"}}));
    EXPECT_EQ(parts.legends, (std::map<int, Text>{{0, u"Volume"}, {1, u"Margin"}}));
    EXPECT_EQ(parts.colours, (std::map<int, Colour>{{0, {0, 255, 0}}, {1, {255, 0, 0}}}));
    EXPECT_EQ(parts.axisMin, -3);
    EXPECT_EQ(parts.axisMax, 8);
}

TEST_F(RankedProfit, WithoutItsTitleTheListDoesNotShow)
{
    session.start(u"\"" + RankedProfitScreen().add(1, u"5").text());
    EXPECT_EQ(session.events(),
              (Events{"load startup", "show startup", "hide startup", "load frmProfRank", "show startup"}));
}

TEST_F(RankedProfit, TheSampleListsItsPairs)
{
    session.start(sample("profitrank"));
    EXPECT_EQ(session.events(), opening(profRank));
    EXPECT_EQ(session.text(profRank, "txtL2"),
              u"Total profit for the territory increased by  2481 (from  34331 to  36812).");
    EXPECT_EQ(session.grid(profRank).cells[1],
              (Texts{u"2", u"1842", u"10830", u"GREENFIELD CO-OP" + Text(14, u' '), u"DIESEL    "}));
    EXPECT_EQ(components(2), (Numbers{154, -136}));
}

} // namespace
} // namespace plotvue::test
