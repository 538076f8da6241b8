// The month-to-month list: the sentence above, gains and losses below.
#include "profit_fixture.h"

namespace plotvue::test {
namespace {

class MonthToMonth : public testing::Test {
protected:
    Session session;

    void start(const CaptureBuilder& capture) { session.start(capture.text()); }

    Text sentence(TextSpan current, TextSpan previous)
    {
        MonthToMonthScreen screen;
        screen.put(totalsLine, 9, rightAligned(current, 10)).put(totalsLine, 20, rightAligned(previous, 11));
        Session other;
        other.start(screen.text());
        return other.text(m2m, "txtL2");
    }
};

TEST_F(MonthToMonth, ItsControls)
{
    start(MonthToMonthScreen().add(1, u"5"));
    EXPECT_EQ(session.caption(m2m), u"PlotVue!");
    EXPECT_EQ(controlsOf(session, m2m), (Texts{u"MSFlexGrid1", u"MSFlexGrid2", u"cmdExit", u"cmdPrint",
                                               u"txtHeader", u"txtL2", u"txtL3"}));
    EXPECT_EQ(session.text(m2m, "cmdExit"), u"Exit");
    EXPECT_EQ(session.text(m2m, "cmdPrint"), u"&Print");
}

TEST_F(MonthToMonth, PicturesTellGainsFromLosses)
{
    ASSERT_EQ(frmM2Mpft.grids.size(), 2u);
    const PictureBox& gain = frmM2Mpft.grids[0].picture.value();
    EXPECT_EQ(gain.name, "Picture1");
    EXPECT_EQ(gain.shows, PictureBox::Shows::Gain);
    const PictureBox& loss = frmM2Mpft.grids[1].picture.value();
    EXPECT_EQ(loss.name, "Picture2");
    EXPECT_EQ(loss.shows, PictureBox::Shows::Loss);
}

TEST_F(MonthToMonth, TheHeadingsHaveTheirPadding)
{
    start(MonthToMonthScreen().add(1, u"5"));
    const Text name = u"|Customer|Customer Name" + Text(33, u' ') + u"|Product Group  ";
    EXPECT_EQ(session.grid(m2m, gainsGrid).format, u"Rank |Profit Gain" + name);
    EXPECT_EQ(session.grid(m2m, lossesGrid).format, u"Rank |Profit Loss" + name);
    EXPECT_EQ(session.grid(m2m, gainsGrid).columns, 5);
    EXPECT_EQ(session.grid(m2m, lossesGrid).columns, 5);
}

TEST_F(MonthToMonth, GainsAndLossesAreListedApartInTheOrderOfTheirRanks)
{
    MonthToMonthScreen screen;
    screen.add(1, u"300").add(2, u"-200").add(3, u"100.25").add(4, u"-0.5").add(5, u"7");
    start(screen);
    const Text blanks(20, u' ');
    EXPECT_EQ(session.grid(m2m, gainsGrid).cells,
              (std::vector<Texts>{{u"1", u"300", u"10001", u"CUSTOMER 1" + blanks, u"GROUP 1   "},
                                  {u"2", u"100.25", u"10003", u"CUSTOMER 3" + blanks, u"GROUP 3   "},
                                  {u"3", u"7", u"10005", u"CUSTOMER 5" + blanks, u"GROUP 5   "}}));
    EXPECT_EQ(session.grid(m2m, lossesGrid).cells,
              (std::vector<Texts>{{u"1", u"-200", u"10002", u"CUSTOMER 2" + blanks, u"GROUP 2   "},
                                  {u"2", u"-0.5", u"10004", u"CUSTOMER 4" + blanks, u"GROUP 4   "}}));
}

TEST_F(MonthToMonth, RanksMayComeInAnyOrder)
{
    MonthToMonthScreen screen;
    start(screen.add(3, u"10").add(1, u"30").add(2, u"20"));
    EXPECT_EQ(customers(session, m2m), (Texts{u"10001", u"10002", u"10003"}));
    session.clickRow(m2m, gainsGrid, 1);
    EXPECT_EQ(session.chart(m2mA).series[0][12], 11);
}

TEST_F(MonthToMonth, GainsOnlyLeaveTheOtherGridEmpty)
{
    start(MonthToMonthScreen().add(1, u"5").add(2, u"4"));
    EXPECT_EQ(session.grid(m2m, gainsGrid).rows, 3);
    EXPECT_EQ(session.grid(m2m, lossesGrid).rows, 1);
}

TEST_F(MonthToMonth, LossesOnlyLeaveTheFirstGridEmpty)
{
    start(MonthToMonthScreen().add(1, u"-5").add(2, u"-4"));
    EXPECT_EQ(session.grid(m2m, gainsGrid).rows, 1);
    EXPECT_EQ(customers(session, m2m, lossesGrid), (Texts{u"10001", u"10002"}));
}

TEST_F(MonthToMonth, AGainOfZeroCountsAsALossAndTakesAGainsRow)
{
    MonthToMonthScreen screen;
    start(screen.add(1, u"30").add(2, u"0").add(3, u"10").add(4, u"-5"));
    EXPECT_EQ(customers(session, m2m, gainsGrid), (Texts{u"10001", u"10002"}));
    EXPECT_EQ(customers(session, m2m, lossesGrid), (Texts{u"10002", u"10004"}));
    EXPECT_EQ(cellsOf(session.grid(m2m, gainsGrid), 1), (Texts{u"30", u"0"}));
}

TEST_F(MonthToMonth, AGainOfCentsIsNoLoss)
{
    start(MonthToMonthScreen().add(1, u"0.50").add(2, u"-5"));
    EXPECT_EQ(customers(session, m2m, gainsGrid), Texts{u"10001"});
    EXPECT_EQ(customers(session, m2m, lossesGrid), Texts{u"10002"});
}

TEST_F(MonthToMonth, AGainOfZeroBehindTheLastGainIsALossOnly)
{
    MonthToMonthScreen screen;
    start(screen.add(1, u"30").add(2, u"10").add(3, u"0"));
    EXPECT_EQ(customers(session, m2m, gainsGrid), (Texts{u"10001", u"10002"}));
    EXPECT_EQ(customers(session, m2m, lossesGrid), Texts{u"10003"});
}

TEST_F(MonthToMonth, FiguresOfTheLossesOpenTheirCharts)
{
    MonthToMonthScreen screen;
    start(screen.add(1, u"30").add(2, u"-20").add(3, u"-10"));
    session.clickRow(m2m, lossesGrid, 2);
    EXPECT_EQ(shown(session, m2mA).substr(0, 15), u"Customer: 10003");
    session.press(m2mA, "cmdBack");
    EXPECT_EQ(shown(session, m2mA).substr(0, 15), u"Customer: 10002");
    session.press(m2mA, "cmdBack");
    EXPECT_FALSE(session.loaded(m2mA));
}

TEST_F(MonthToMonth, TextInANumberIsZero)
{
    MonthToMonthScreen screen;
    screen.add(1, u"N/A").add(2, u"1,234.5").put(ProfitScreen::lineOf(1), 14, u"NONE ");
    start(screen);
    EXPECT_EQ(session.grid(m2m, lossesGrid).cells[0][1], u"0");
    EXPECT_EQ(session.grid(m2m, lossesGrid).cells[0][2], u"0");
    EXPECT_EQ(session.grid(m2m, gainsGrid).rows, 2);
    EXPECT_EQ(readRanked(frmM2Mpft, screen.text()).entry(2).numbers[profit::figure], 1);
}

TEST_F(MonthToMonth, EveryGainLineCounts)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").add(2, u"-20").put(14, 1, u"GAIN:" + Text(120, u' ')).put(14, 6, u"      -20");
    start(screen);
    EXPECT_EQ(session.grid(m2m, lossesGrid).rows, 3);
    EXPECT_EQ(customers(session, m2m, lossesGrid), (Texts{u"10002", u"0"}));
}

TEST_F(MonthToMonth, MarkersMayStandAnywhereAndSeveralOnALine)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").put(2, 1, u"ALL MONTH TO MONTH FOR SALES REP 7");
    start(screen);
    EXPECT_EQ(session.text(m2m, "txtHeader"), u"ALL MONTH TO MONTH FOR SALES REP 7");
    EXPECT_EQ(session.text(m2m, "txtL3"), u"ALL MONTH TO MONTH FOR SALES REP 7");
}

TEST_F(MonthToMonth, ALineMayOpenAnEntryAndGiveItsGain)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").put(10, 1, u"RANK:  2;  GAIN:"); // a gain stands where a rank does
    start(screen);
    EXPECT_EQ(cellsOf(session.grid(m2m, gainsGrid), 1), (Texts{u"30", u"2"}));
}

TEST_F(MonthToMonth, TheLastOfSeveralHeadingsWins)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").put(10, 1, u"MONTH TO MONTH, PAGE 2").put(11, 1, u"FOR SALES REP 015");
    start(screen);
    EXPECT_EQ(session.text(m2m, "txtHeader"), u"MONTH TO MONTH, PAGE 2");
    EXPECT_EQ(session.text(m2m, "txtL3"), u"FOR SALES REP 015");
}

TEST_F(MonthToMonth, TheSentenceSaysWhatTheTerritoryGained)
{
    EXPECT_EQ(sentence(u"9250.00", u"8000.00"),
              u"Total profit for the territory increased by  1250 (from  8000 to  9250).");
    EXPECT_EQ(sentence(u"8000", u"9250"),
              u"Total profit for the territory decreased by  1250 (from  9250 to  8000).");
}

TEST_F(MonthToMonth, EqualProfitsIncreasedByNothing)
{
    EXPECT_EQ(sentence(u"8000", u"8000"),
              u"Total profit for the territory increased by  0 (from  8000 to  8000).");
}

TEST_F(MonthToMonth, NegativeProfitsHaveTheirMinus)
{
    EXPECT_EQ(sentence(u"-500", u"800"),
              u"Total profit for the territory decreased by  1300 (from  800 to -500).");
    EXPECT_EQ(sentence(u"-500", u"-800"),
              u"Total profit for the territory increased by  300 (from -800 to -500).");
}

TEST_F(MonthToMonth, ProfitsAreCutDownToWholeNumbersFirst)
{
    EXPECT_EQ(sentence(u"100.99", u"100.01"),
              u"Total profit for the territory increased by  0 (from  100 to  100).");
    EXPECT_EQ(sentence(u"-0.5", u"0.5"), u"Total profit for the territory decreased by  1 (from  0 to -1).");
    EXPECT_EQ(sentence(u"-2.01", u"-2"), u"Total profit for the territory decreased by  1 (from -2 to -3).");
}

TEST_F(MonthToMonth, LargeProfitsAreWrittenWithoutSeparators)
{
    EXPECT_EQ(sentence(u"1234567890", u"34567.9"),
              u"Total profit for the territory increased by  1234533323 (from  34567 to  1234567890).");
}

TEST_F(MonthToMonth, ADifferenceOfProfitsBeyondADoubleIsARunTimeError)
{
    MonthToMonthScreen screen;
    screen.put(totalsLine, 9, rightAligned(u"1.7E308", 10))
        .put(totalsLine, 20, rightAligned(u"-1.7E308", 11));
    start(screen);
    EXPECT_EQ(session.events().back(), "error A figure worked out from the screen is too large.");
}

TEST_F(MonthToMonth, WithoutItsPageLinesTheScreenSaysNothingOfThem)
{
    CaptureBuilder screen(3);
    screen.put(1, 1, u"TO MONTH PROFIT AN");
    start(screen);
    EXPECT_EQ(session.events(), opening(m2m));
    EXPECT_EQ(session.text(m2m, "txtHeader"), u"");
    EXPECT_EQ(session.text(m2m, "txtL2"), u"Total profit for the territory increased by  0 (from  0 to  0).");
    EXPECT_EQ(session.text(m2m, "txtL3"), u"");
    EXPECT_EQ(session.grid(m2m, gainsGrid).rows, 1);
    EXPECT_EQ(session.grid(m2m, lossesGrid).rows, 1);
}

TEST_F(MonthToMonth, TheSampleListsItsPairs)
{
    session.start(sample("monthtomonth"));
    EXPECT_EQ(session.events(), opening(m2m));
    EXPECT_EQ(session.text(m2m, "txtL2"),
              u"Total profit for the territory increased by  2481 (from  34331 to  36812).");
    EXPECT_EQ(session.text(m2m, "txtL3"), u"FOR SALES REP 014 R. HALVORSEN, NORTH TERRITORY");
    EXPECT_EQ(session.grid(m2m, gainsGrid).cells[0],
              (Texts{u"1", u"756", u"10386", u"MILLBROOK TRANSIT             ", u"LUBRICANTS"}));
    EXPECT_EQ(session.grid(m2m, lossesGrid).cells[0],
              (Texts{u"1", u"-250", u"11187", u"JUNIPER FLATS WELL DRILLING   ", u"LUBRICANTS"}));
}

} // namespace
} // namespace plotvue::test
