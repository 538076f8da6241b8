// The frame of the ranked analyses, seen in the month-to-month windows: cutting the capture, the list, the
// way through it with Back and Down.
#include "profit_fixture.h"

namespace plotvue::test {
namespace {

class RankedFrame : public testing::Test {
protected:
    Session session;

    void start(const CaptureBuilder& capture) { session.start(capture.text()); }

    MonthToMonthScreen gains(int count)
    {
        MonthToMonthScreen screen;
        for (int rank = 1; rank <= count; ++rank)
            screen.add(rank, digits(1000 - rank));
        return screen;
    }

    Text customer() { return shown(session, m2mA).substr(0, 15); }
};

TEST_F(RankedFrame, OpensFromTheCaptureOnTheClipboard)
{
    start(gains(3));
    EXPECT_EQ(session.events(), opening(m2m));
    EXPECT_EQ(customers(session, m2m), (Texts{u"10001", u"10002", u"10003"}));
    EXPECT_EQ(session.file("pvuscrn.txt"), "\"" + toUtf8(gains(3).text()) + "\"\r\n");
    EXPECT_FALSE(session.fileExists("plotvue.txt"));
    EXPECT_FALSE(session.fileExists("plotvue1.txt"));
}

TEST_F(RankedFrame, BlankLinesAreNoLines)
{
    const Text spaced = gains(2).text(u"\r\n\r\n\t\r\n");
    session.start(spaced);
    EXPECT_EQ(customers(session, m2m), (Texts{u"10001", u"10002"}));
    session.clickRow(m2m, gainsGrid, 2);
    EXPECT_EQ(customer(), u"Customer: 10002");
    EXPECT_EQ(session.chart(m2mA).series[0][12], 21);
}

TEST_F(RankedFrame, ALineOfBlanksIsALine)
{
    MonthToMonthScreen screen = gains(1);
    screen.put(7, 1, Text(106, u' '));
    start(screen);
    session.clickRow(m2m, gainsGrid, 1);
    session.choose(m2mA, "optSales", 2);
    EXPECT_EQ(session.chart(m2mA).series[0], Numbers(13, 0));
    session.choose(m2mA, "optSales", 0);
    EXPECT_EQ(session.chart(m2mA).series[0][12], 11);
}

TEST_F(RankedFrame, ACarriageReturnAloneEndsALine)
{
    session.start(gains(2).text(u"\r"));
    EXPECT_EQ(customers(session, m2m), (Texts{u"10001", u"10002"}));
}

TEST_F(RankedFrame, ALastLineWithoutALineEndIsNotRead)
{
    MonthToMonthScreen screen = gains(1);
    screen.put(10, 1, u"MONTH TO MONTH, THE LAST LINE");
    const Text whole = screen.text();
    session.start(whole);
    EXPECT_EQ(session.text(m2m, "txtHeader"), u"MONTH TO MONTH, THE LAST LINE");
    session.press(m2m, "cmdExit");
    session.copy(TextSpan(whole).substr(0, whole.size() - 2));
    session.press("startup", "Command1");
    EXPECT_EQ(session.text(m2m, "txtHeader"), u"MONTH TO MONTH PROFIT ANALYSIS");
}

TEST_F(RankedFrame, WhatStandsBehindTheFiveHundredthLineIsNotRead)
{
    MonthToMonthScreen screen = gains(1);
    screen.put(500, 1, u"FOR SALES, LINE 500").put(501, 1, u"FOR SALES, LINE 501");
    start(screen);
    EXPECT_EQ(session.text(m2m, "txtL3"), u"FOR SALES, LINE 500");
}

TEST_F(RankedFrame, BlankLinesDoNotCountTowardsTheFiveHundred)
{
    MonthToMonthScreen screen = gains(1);
    screen.put(500, 1, u"FOR SALES, LINE 500").put(501, 1, u"FOR SALES, LINE 501");
    session.start(screen.text(u"\r\n\r\n"));
    EXPECT_EQ(session.text(m2m, "txtL3"), u"FOR SALES, LINE 500");
}

TEST_F(RankedFrame, AnEntryCutOffIsListedWithWhatIsThere)
{
    const Text whole = gains(2).text();
    session.start(whole.substr(0, whole.find(u'\r', whole.find(u"10002")) + 2));
    EXPECT_EQ(customers(session, m2m), Texts{u"10001"});
    session.press(m2m, "cmdExit");
    session.copy(whole.substr(0, whole.find(u'\r', whole.rfind(u"GAIN:")) + 2));
    session.press("startup", "Command1");
    EXPECT_EQ(customers(session, m2m), (Texts{u"10001", u"10002"}));
    session.clickRow(m2m, gainsGrid, 2);
    EXPECT_EQ(customer(), u"Customer: 10002");
    EXPECT_EQ(session.chart(m2mA).series[0], Numbers(13, 0));
    EXPECT_FALSE(session.platform.over());
}

TEST_F(RankedFrame, ACaptureCutAnywhereIsNoError)
{
    const Text whole = gains(1).text();
    const std::size_t title = whole.find(u"PROFIT AN") + 9;
    for (std::size_t length = title; length <= whole.size(); ++length) {
        const RankedReading reading = readRanked(frmM2Mpft, TextSpan(whole).substr(0, length));
        EXPECT_TRUE(reading.accepted) << length;
        EXPECT_EQ(ranksIn(frmM2Mpft.grids[0], reading).size(), reading.counts[0] > 0 ? 1u : 0u) << length;
    }
}

TEST_F(RankedFrame, AQuoteEndsTheCapture)
{
    const Text whole = gains(2).text();
    session.start(Text(whole).insert(whole.find(u"RANK:  2"), u"\""));
    EXPECT_EQ(customers(session, m2m), Texts{u"10001"});
    EXPECT_EQ(session.events(), opening(m2m));
}

TEST_F(RankedFrame, AQuoteBeforeTheTitleLeavesNothingToShow)
{
    session.start(u"\"" + gains(2).text());
    EXPECT_EQ(session.events(),
              (Events{"load startup", "show startup", "hide startup", "load frmM2Mpft", "show startup"}));
    EXPECT_FALSE(session.visible(m2m));
}

TEST_F(RankedFrame, ExitGoesBackToTheStart)
{
    start(gains(2));
    session.events();
    session.press(m2m, "cmdExit");
    EXPECT_EQ(session.events(), (Events{"hide frmM2Mpft", "show startup"}));
    session.copy(gains(1).text());
    session.press("startup", "Command1");
    EXPECT_EQ(session.events(), (Events{"hide startup", "load frmM2Mpft", "show frmM2Mpft"}));
    EXPECT_EQ(customers(session, m2m), Texts{u"10001"});
    session.close(m2m);
    EXPECT_EQ(session.events(), (Events{"hide frmM2Mpft", "show startup"}));
}

TEST_F(RankedFrame, PrintsACopyAJob)
{
    start(gains(1));
    session.clickRow(m2m, gainsGrid, 1);
    session.events();
    session.press(m2m, "cmdPrint");
    session.press(m2mA, "cmdPrint");
    EXPECT_EQ(session.events(), Events{});
    session.platform.printer = {.answer = RecordingPlatform::Printer::Answer::Accept, .copies = 2};
    session.press(m2m, "cmdPrint");
    session.press(m2mA, "cmdPrint");
    EXPECT_EQ(session.events(),
              (Events{"print frmM2Mpft", "print frmM2Mpft", "print frmM2MpftA", "print frmM2MpftA"}));
}

TEST_F(RankedFrame, ARankOutsideTheTableIsARunTimeError)
{
    for (const TextSpan rank : {u"  0", u"101", u" -1", u"   ", u"999"}) {
        Session broken;
        MonthToMonthScreen screen = gains(2);
        broken.start(screen.put(ProfitScreen::lineOf(2), 6, rank).text());
        const Events events = broken.events();
        EXPECT_EQ(events.back(), "error Line 10 of the copied text: A rank on the screen is outside 1 to "
                                 "100, which is all that can "
                                 "be listed.")
            << toUtf8(rank);
        EXPECT_TRUE(broken.platform.over());
    }
}

TEST_F(RankedFrame, AFigureBeforeTheFirstRankIsARunTimeError)
{
    MonthToMonthScreen screen = gains(1);
    start(screen.put(2, 1, u"GAIN: 5"));
    EXPECT_TRUE(endsInAnError(session));
}

TEST_F(RankedFrame, AMissingRankIsAnEntryOfZeros)
{
    MonthToMonthScreen screen;
    start(screen.add(1, u"30").add(3, u"10"));
    const Grid grid = session.grid(m2m);
    EXPECT_EQ(grid.cells, (std::vector<Texts>{
                              {u"1", u"30", u"10001", Text(u"CUSTOMER 1") + Text(20, u' '), u"GROUP 1   "},
                              {u"2", u"0", u"0", u"", u""}}));
    EXPECT_EQ(session.grid(m2m, lossesGrid).rows, 1);
    // It is looked for by the number 0 and an empty group: the first short line.
    session.clickRow(m2m, gainsGrid, 2);
    EXPECT_EQ(session.file("plotvue1.txt"), "0,\"\"\r\n");
    EXPECT_EQ(shown(session, m2mA), u"Customer: H PRO - IT ANALYSIS\r");
}

TEST_F(RankedFrame, AWalkBeyondTheHundredthRankIsARunTimeError)
{
    MonthToMonthScreen screen = gains(1);
    for (std::size_t i = 0; i < 101; ++i)
        screen.put(10 + i, 1, u"GAIN:  5");
    start(screen);
    EXPECT_TRUE(endsInAnError(session));
}

} // namespace
} // namespace plotvue::test
