// The month-to-month list: the sentence about the territory's profits, the gains and the losses.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

RankedSession opened(const CaptureBuilder& capture)
{
    return {m2m, capture.text()};
}

// What the list says about the territory's profits.
Text sentence(TextSpan current, TextSpan previous)
{
    MonthToMonthScreen screen;
    screen.put(totalsLine, 9, atRight(current, 10)).put(totalsLine, 20, atRight(previous, 11));
    return opened(screen).header("txtL2");
}

TEST(MonthToMonth, PicturesTellGainsFromLosses)
{
    ASSERT_EQ(frmM2Mpft.grids.size(), 2u);
    const PictureBox& gain = frmM2Mpft.grids[0].picture.value();
    EXPECT_EQ(gain.name, "Picture1");
    EXPECT_EQ(gain.symbol, PictureBox::Symbol::Gain);
    const PictureBox& loss = frmM2Mpft.grids[1].picture.value();
    EXPECT_EQ(loss.name, "Picture2");
    EXPECT_EQ(loss.symbol, PictureBox::Symbol::Loss);
    EXPECT_FALSE(frmProfRank.grids[0].picture);
}

TEST(MonthToMonth, TheHeadingsHaveTheirPadding)
{
    RankedSession session = opened(MonthToMonthScreen().add(1, u"5"));
    const Text name = u"|Customer|Customer Name" + Text(33, u' ') + u"|Product Group  ";
    EXPECT_EQ(session.grid(m2m).format, u"Rank |Profit Gain" + name);
    EXPECT_EQ(session.grid(m2m, lossesGrid).format, u"Rank |Profit Loss" + name);
    EXPECT_EQ(session.grid(m2m).columns, 5);
    EXPECT_EQ(session.grid(m2m, lossesGrid).columns, 5);
}

TEST(MonthToMonth, GainsAndLossesAreListedApartInTheOrderOfTheirRanks)
{
    MonthToMonthScreen screen;
    screen.add(1, u"300").add(2, u"-200").add(3, u"100.25").add(4, u"-0.5").add(5, u"7");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.rows(), (Rows{{u"1", u"300", u"10001", atLeft(u"CUSTOMER 1", 30), u"GROUP 1   "},
                                    {u"2", u"100.25", u"10003", atLeft(u"CUSTOMER 3", 30), u"GROUP 3   "},
                                    {u"3", u"7", u"10005", atLeft(u"CUSTOMER 5", 30), u"GROUP 5   "}}));
    EXPECT_EQ(session.rows(lossesGrid),
              (Rows{{u"1", u"-200", u"10002", atLeft(u"CUSTOMER 2", 30), u"GROUP 2   "},
                    {u"2", u"-0.5", u"10004", atLeft(u"CUSTOMER 4", 30), u"GROUP 4   "}}));
}

TEST(MonthToMonth, RanksMayComeInAnyOrder)
{
    MonthToMonthScreen screen;
    RankedSession session = opened(screen.add(3, u"10").add(1, u"30").add(2, u"20"));
    EXPECT_EQ(session.column(2), (Texts{u"10001", u"10002", u"10003"}));
    session.click(1);
    EXPECT_EQ(session.newest(), 11);
}

TEST(MonthToMonth, EachGridListsItsOwn)
{
    const struct {
        Lines figures; // one for each customer: 10001, 10002 and so on
        Texts gains, losses;
    } cases[]{{{u"5", u"4"}, {u"10001", u"10002"}, {}},
              {{u"-5", u"-4"}, {}, {u"10001", u"10002"}},
              {{u"0.50", u"-5"}, {u"10001"}, {u"10002"}},
              {{u"30", u"10", u"0"}, {u"10001", u"10002"}, {u"10003"}}};
    for (const auto& [figures, gains, losses] : cases) {
        MonthToMonthScreen screen;
        for (std::size_t i = 0; i < figures.size(); ++i)
            screen.add(static_cast<int>(i) + 1, figures[i]);
        RankedSession session = opened(screen);
        EXPECT_EQ(session.column(2), gains) << toUtf8(figures[0]);
        EXPECT_EQ(session.column(2, lossesGrid), losses) << toUtf8(figures[0]);
    }
}

TEST(MonthToMonth, AGainOfZeroCountsAsALossAndTakesAGainsRow)
{
    MonthToMonthScreen screen;
    RankedSession session = opened(screen.add(1, u"30").add(2, u"0").add(3, u"10").add(4, u"-5"));
    EXPECT_EQ(session.column(2), (Texts{u"10001", u"10002"}));
    EXPECT_EQ(session.column(2, lossesGrid), (Texts{u"10002", u"10004"}));
    EXPECT_EQ(session.column(1), (Texts{u"30", u"0"}));
}

TEST(MonthToMonth, FiguresOfTheLossesOpenTheirCharts)
{
    MonthToMonthScreen screen;
    RankedSession session = opened(screen.add(1, u"30").add(2, u"-20").add(3, u"-10"));
    session.click(2, lossesGrid);
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10003");
    session.back();
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10002");
    session.back();
    EXPECT_FALSE(session.loaded(session.drillDown));
}

TEST(MonthToMonth, TextInANumberIsZero)
{
    MonthToMonthScreen screen;
    screen.add(1, u"N/A").add(2, u"1,234.5").put(ProfitScreen::lineOf(1), 14, u"NONE ");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.rows(lossesGrid)[0][1], u"0");
    EXPECT_EQ(session.rows(lossesGrid)[0][2], u"0");
    EXPECT_EQ(session.rows().size(), 1u);
    EXPECT_EQ(readRanked(frmM2Mpft, screen.text()).entry(2).numbers[profit::figure], 1);
}

TEST(MonthToMonth, EveryGainLineCounts)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").add(2, u"-20").put(14, 1, u"GAIN:" + Text(120, u' ')).put(14, 6, u"      -20");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.rows(lossesGrid).size(), 2u);
    EXPECT_EQ(session.column(2, lossesGrid), (Texts{u"10002", u"0"}));
}

TEST(MonthToMonth, GainLinesBeforeTheFirstRankArePassedOver)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30")
        .add(2, u"-20")
        .put(2, 1, u"FOR SALES REP 014 BARGAIN: 12345")
        .insertLine(3, u"GAIN:   7");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.header("txtL3"), u"FOR SALES REP 014 BARGAIN: 12345");
    EXPECT_EQ(session.column(1), Texts{u"30"});
    EXPECT_EQ(session.column(1, lossesGrid), Texts{u"-20"});
}

TEST(MonthToMonth, MarkersMayStandAnywhereAndSeveralOnALine)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").put(2, 1, u"ALL MONTH TO MONTH FOR SALES REP 7");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.header("txtHeader"), u"ALL MONTH TO MONTH FOR SALES REP 7");
    EXPECT_EQ(session.header("txtL3"), u"ALL MONTH TO MONTH FOR SALES REP 7");
}

TEST(MonthToMonth, ALineMayOpenAnEntryAndGiveItsGain)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").put(10, 1, u"RANK:  2;  GAIN:"); // the rank and the gain share columns 6 to 8
    RankedSession session = opened(screen);
    EXPECT_EQ(session.column(1), (Texts{u"30", u"2"}));
}

TEST(MonthToMonth, TheLastOfSeveralHeadingsWins)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30").put(10, 1, u"MONTH TO MONTH, PAGE 2").put(11, 1, u"FOR SALES REP 015");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.header("txtHeader"), u"MONTH TO MONTH, PAGE 2");
    EXPECT_EQ(session.header("txtL3"), u"FOR SALES REP 015");
}

TEST(MonthToMonth, TheSentenceSaysWhatTheTerritoryGained)
{
    const struct {
        TextSpan current, previous;
        const char* change;
    } cases[]{{u"9250.00", u"8000.00", "increased by  1250 (from  8000 to  9250)."},
              {u"8000", u"9250", "decreased by  1250 (from  9250 to  8000)."},
              {u"8000", u"8000", "increased by  0 (from  8000 to  8000)."},
              {u"-500", u"800", "decreased by  1300 (from  800 to -500)."},
              {u"-500", u"-800", "increased by  300 (from -800 to -500)."},
              // Both profits are rounded down to whole numbers before they are subtracted.
              {u"100.99", u"100.01", "increased by  0 (from  100 to  100)."},
              {u"-0.5", u"0.5", "decreased by  1 (from  0 to -1)."},
              {u"-2.01", u"-2", "decreased by  1 (from -2 to -3)."},
              {u"1234567890", u"34567.9", "increased by  1234533323 (from  34567 to  1234567890)."}};
    for (const auto& [current, previous, change] : cases)
        EXPECT_EQ(toUtf8(sentence(current, previous)),
                  std::string("Total profit for the territory ") + change);
}

TEST(MonthToMonth, ADifferenceOfProfitsBeyondADoubleIsARunTimeError)
{
    MonthToMonthScreen screen;
    screen.put(totalsLine, 9, atRight(u"1.7E308", 10)).put(totalsLine, 20, atRight(u"-1.7E308", 11));
    RankedSession session = opened(screen);
    EXPECT_EQ(session.events().back(), "error A figure worked out from the screen is too large.");
}

TEST(MonthToMonth, WithoutItsPageLinesTheScreenSaysNothingOfThem)
{
    CaptureBuilder screen(3);
    screen.put(1, 1, u"TO MONTH PROFIT AN");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.events(), opening(m2m));
    EXPECT_EQ(session.header("txtHeader"), u"");
    EXPECT_EQ(session.header("txtL2"), u"Total profit for the territory increased by  0 (from  0 to  0).");
    EXPECT_EQ(session.header("txtL3"), u"");
    EXPECT_TRUE(session.rows().empty());
    EXPECT_TRUE(session.rows(lossesGrid).empty());
}

TEST(MonthToMonth, TheSampleListsItsPairs)
{
    RankedSession session(m2m, sample("monthtomonth"));
    EXPECT_EQ(session.events(), opening(m2m));
    EXPECT_EQ(session.header("txtL2"),
              u"Total profit for the territory increased by  2481 (from  34331 to  36812).");
    EXPECT_EQ(session.header("txtL3"), u"FOR SALES REP 014 R. HALVORSEN, NORTH TERRITORY");
    EXPECT_EQ(session.rows()[0],
              (Texts{u"1", u"756", u"10386", u"MILLBROOK TRANSIT             ", u"LUBRICANTS"}));
    EXPECT_EQ(session.rows(lossesGrid)[0],
              (Texts{u"1", u"-250", u"11187", u"JUNIPER FLATS WELL DRILLING   ", u"LUBRICANTS"}));
}

} // namespace
} // namespace plotvue::test
