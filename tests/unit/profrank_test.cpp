// Ranked profit: what differs from the month-to-month windows.
#include "rankedfixture.h"

#include <algorithm>

namespace plotvue::test {
namespace {

RankedSession opened(const CaptureBuilder& capture)
{
    return {profRank, capture.text()};
}

Numbers components(RankedSession& session, int row)
{
    session.click(row);
    const std::vector<Numbers> series = session.drawn("ChartFX2").series;
    session.use("cmdExit");
    return {series.at(0).at(0), series.at(1).at(0)};
}

TEST(RankedProfit, ListsThePositiveProfits)
{
    RankedProfitScreen screen;
    RankedSession session = opened(screen.add(1, u"1842.50").add(2, u"30").add(3, u"-4"));
    const Grid grid = session.grid(profRank);
    EXPECT_EQ(grid.format,
              u"Rank |Profit (current)|Customer|Customer Name" + Text(38, u' ') + u"|Product Group  ");
    EXPECT_EQ(grid.columns, 5);
    EXPECT_EQ(grid.cells, (Rows{{u"1", u"1842.5", u"10001", atLeft(u"CUSTOMER 1", 30), u"GROUP 1   "},
                                {u"2", u"30", u"10002", atLeft(u"CUSTOMER 2", 30), u"GROUP 2   "}}));
    const Text text = screen.text();
    const RankedFigures read = readRanked(frmProfRank, text);
    EXPECT_EQ(read.counts[profit::gains], 2);
    EXPECT_EQ(read.counts[profit::losses], 1);
}

TEST(RankedProfit, AProfitOfZeroTakesTheRowOfTheLastAndALossNone)
{
    EXPECT_EQ(opened(RankedProfitScreen().add(1, u"30").add(2, u"0").add(3, u"10")).column(2),
              (Texts{u"10001", u"10002"}));
    RankedSession session = opened(RankedProfitScreen().add(1, u"30").add(2, u"-5").add(3, u"10"));
    EXPECT_EQ(session.column(2), (Texts{u"10001", u"10003"}));
    session.click(1);
    session.down();
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10003");
}

TEST(RankedProfit, SaysWhatTheTerritoryGained)
{
    RankedProfitScreen screen;
    screen.add(1, u"5").put(totalsLine, 1, u"Mprofit   8000.75  9 -9250.25");
    RankedSession session = opened(screen);
    // The 9 is in column 20. Only on the month-to-month screen does that column belong to the profit.
    EXPECT_EQ(session.header("txtL2"),
              u"Total profit for the territory increased by  17251 (from -9251 to  8000).");
    EXPECT_EQ(session.header("txtHeader"), u"RANKED PROFIT ANALYSIS");
    EXPECT_EQ(session.header("txtL3"), u"FOR SALES REP 014");
}

TEST(RankedProfit, AHeadingNeedNotBeTheTitle)
{
    RankedProfitScreen screen;
    screen.add(1, u"5").put(2, 1, u"RANKED PROF. FOR OCTOBER");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.header("txtHeader"), u"RANKED PROF. FOR OCTOBER");
}

TEST(RankedProfit, ALineMayOpenAnEntryAndGiveItsComponents)
{
    const Text text = CaptureBuilder(2)
                          .put(1, 1, u"RANKED PROFIT AN")
                          .put(2, 1, u"RANK:  2")
                          .put(2, 18, u"1234567890123456789012345 GAIN:")
                          .text();
    const RankedFigures read = readRanked(frmProfRank, text);
    EXPECT_EQ(read.entry(2).numbers[profit::volumePart], 234567890); // columns 19 to 27
    EXPECT_EQ(read.entry(2).numbers[profit::marginPart], 567890123); // columns 32 to 40
}

TEST(RankedProfit, ANameIsNoComponentLineInTheChart)
{
    CaptureBuilder screen(4);
    screen.put(1, 1, u"RANKED PROFIT AN")
        .put(2, 1, u"RANK:  1;    10001 55 SHOP: MAIN ROAD")
        .put(2, 60, u" ");
    RankedSession session = opened(screen);
    EXPECT_EQ(components(session, 1), (Numbers{0, 0}));
}

TEST(RankedProfit, ARecordIsTheLabelsAndFiveLines)
{
    RankedSession session = opened(RankedProfitScreen().add(1, u"5").add(2, u"4"));
    session.click(1);
    const std::string list = session.file("plotvue.txt");
    const std::string record = list.substr(0, list.find("\r\n"));
    EXPECT_EQ(std::count(record.begin(), record.end(), '"'), 2 * 6);
}

TEST(RankedProfit, AComponentLineOfEitherKindIsShown)
{
    RankedProfitScreen screen;
    screen.add(1, u"50", u"8", u"-3").add(2, u"40", u"6", u"7");
    RankedSession session = opened(screen);
    EXPECT_EQ(components(session, 1), (Numbers{8, -3}));
    EXPECT_EQ(components(session, 2), (Numbers{6, 7}));
}

// An entry with a "P:" and a "GAIN:" line. The fifth of its lines is then that of the sales.
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

TEST(RankedProfit, OfTwoComponentLinesTheLaterIsShown)
{
    RankedSession session = opened(withBothLines(true));
    EXPECT_EQ(session.column(2), Texts{u"10001"});
    EXPECT_EQ(components(session, 1), (Numbers{8, -3}));
    session.open(withBothLines(false).text());
    EXPECT_EQ(session.rows()[0][1], u"50");
    EXPECT_EQ(components(session, 1), (Numbers{11, 22}));
}

TEST(RankedProfit, TheMonthsOfAnEntryWithBothLinesAreALineOff)
{
    // The volume of the newest month is 70, its sales are 700.
    CaptureBuilder screen = withBothLines(true);
    screen.put(8, 1, u"V       70").put(9, 1, u"S      700");
    RankedSession session = opened(screen);
    session.click(1);
    EXPECT_EQ(session.newest(), 70); // charted as sales
    session.chooseType(1);
    EXPECT_EQ(session.newest(), 700); // charted as profit
}

TEST(RankedProfit, TheLaterComponentLineIsKeptOfTheEntryToo)
{
    for (const bool profitLast : {true, false}) {
        const Text text = withBothLines(profitLast).text();
        const RankedFigures read = readRanked(frmProfRank, text);
        EXPECT_EQ(read.entry(1).numbers[profit::figure], 50);
        EXPECT_EQ(read.entry(1).numbers[profit::volumePart], profitLast ? 8 : 11);
        EXPECT_EQ(read.entry(1).numbers[profit::marginPart], profitLast ? -3 : 22);
        EXPECT_EQ(read.counts, (std::array{1, 0}));
    }
}

TEST(RankedProfit, WithoutAComponentLineTheSecondLineIsShown)
{
    // The screen has no rank 1, so the row of rank 1 has neither number nor group. A click on it charts what
    // is in the first lines of the screen.
    RankedProfitScreen screen;
    screen.add(2, u"50", u"8", u"-3").put(2, 27, u"7").put(2, 39, u"-2").put(2, 50, u" ");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.column(2), Texts{u"0"});
    EXPECT_EQ(components(session, 1), (Numbers{7, -2}));
}

TEST(RankedProfit, AGainLineAloneCountsNothing)
{
    RankedProfitScreen screen;
    screen.add(1, u"50").put(6, 1, u"GAIN:");
    RankedSession session = opened(screen);
    EXPECT_TRUE(session.rows().empty());
}

TEST(RankedProfit, AnyLineWithPAndAColonIsAProfitLine)
{
    RankedProfitScreen screen;
    screen.add(1, u"50").add(2, u"40").put(14, 1, u"P     -7 STEP:");
    RankedSession session = opened(screen);
    // The profit of the second entry changes to -7, but the entry is still counted as a row.
    const Text text = screen.text();
    EXPECT_EQ(readRanked(frmProfRank, text).entry(2).numbers[profit::figure], -7);
    EXPECT_EQ(session.column(2), (Texts{u"10001", u"0"}));
}

TEST(RankedProfit, FigureLinesBeforeTheFirstRankArePassedOver)
{
    RankedProfitScreen screen;
    screen.add(1, u"50", u"8", u"-3").add(2, u"-5").put(2, 1, u"FOR SALES REP: 014 7 8 9 WIDE NORTH AREA 5");
    CaptureBuilder withGain = screen;
    withGain.insertLine(3, u"GAIN:      -99            11           22");
    for (const CaptureBuilder& capture : {CaptureBuilder(screen), withGain}) {
        RankedSession session = opened(capture);
        EXPECT_EQ(session.header("txtL3"), u"FOR SALES REP: 014 7 8 9 WIDE NORTH AREA 5");
        EXPECT_EQ(session.column(2), Texts{u"10001"});
        EXPECT_EQ(components(session, 1), (Numbers{8, -3}));
        const Text text = capture.text();
        const RankedFigures read = readRanked(frmProfRank, text);
        EXPECT_EQ(read.counts, (std::array{1, 1}));
        EXPECT_EQ(read.entry(1).numbers[profit::figure], 50);
        EXPECT_EQ(read.entry(1).numbers[profit::volumePart], 8);
    }
}

TEST(RankedProfit, ChartsItsMonths)
{
    RankedSession session = opened(RankedProfitScreen().add(1, u"50", u"8", u"-3").add(2, u"40"));
    session.click(2);
    EXPECT_EQ(session.drawn().series,
              (std::vector<Numbers>{{33, 32, 31, 30, 29, 28, 27, 26, 25, 24, 23, 22, 21}}));
    EXPECT_EQ(session.drawn().titles,
              (std::map<int, Text>{{1, u"Sales"},
                                   {2, u"Customer: 10002 - CUSTOMER 2" + Text(20, u' ')},
                                   {3, u"Product: GROUP 2   "}}));
    session.back();
    const Chart parts = session.drawn("ChartFX2");
    EXPECT_EQ(parts.titles, (std::map<int, Text>{{2, u"Volume/Margin components"}}));
    EXPECT_EQ(parts.legends, (std::map<int, Text>{{0, u"Volume"}, {1, u"Margin"}}));
    EXPECT_EQ(parts.colours, (std::map<int, Colour>{{0, {0, 255, 0}}, {1, {255, 0, 0}}}));
    EXPECT_EQ(parts.axisMin, -3);
    EXPECT_EQ(parts.axisMax, 8);
}

TEST(RankedProfit, TheSampleListsItsPairs)
{
    RankedSession session(profRank, sample("profitrank"));
    EXPECT_EQ(session.events(), opening(profRank));
    EXPECT_EQ(session.header("txtL2"),
              u"Total profit for the territory increased by  2481 (from  34331 to  36812).");
    EXPECT_EQ(session.rows()[1],
              (Texts{u"2", u"1842", u"10830", u"GREENFIELD CO-OP" + Text(14, u' '), u"DIESEL    "}));
    EXPECT_EQ(components(session, 2), (Numbers{154, -136}));
}

} // namespace
} // namespace plotvue::test
