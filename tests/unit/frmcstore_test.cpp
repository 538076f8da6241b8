#include "unit/history_fixture.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

namespace {

constexpr Name window = "frmCSTORE";

HostScreen store()
{
    return hostScreen("cstore");
}

INSTANTIATE_TEST_SUITE_P(FrmCSTORE, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmCSTORE,
                             .sample = "cstore",
                             .newestLine = 5,
                             .dayLine = 1,
                             .dayColumn = 10,
                             .days = 31,
                             .day = 22,
                             .percent = hundredTimesQuotient,
                             .periods = {u"12", u"24", u"6"},
                             .types = {u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"},
                         }));

TEST(FrmCSTORE, TitlesNameTheStoreAndTheDepartment)
{
    Session session;
    session.start(store().text());
    EXPECT_EQ(session.chart(window).titles,
              (std::map<int, Text>{{1, u"Sales"},
                                   {2, u"Store: LANTERN HILL MARKET, 88 ORCHARD ROW"},
                                   {3, u"GROCERY AND DELI"}}));
}

TEST(FrmCSTORE, TheStoreIsCutFromLineOneBehindLineTwosColon)
{
    Session session;
    session.start(store()
                      .replaceLine(1, u"PCS05H1B 22JUL99:ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789ABCDEF")
                      .replaceLine(2, u"           DEPARTMENT:A:B")
                      .text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"Store: FGHIJKLMNOPQRSTUVWXYZ0123456789ABCD");
    EXPECT_EQ(session.chart(window).titles.at(3), u"A:B");
}

TEST(FrmCSTORE, WithoutAColonTheStoreIsCutFromColumnOne)
{
    Session session;
    session.start(store().replaceLine(2, u"ALL DEPARTMENTS").text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"Store: PCS05H1B 22JUL99  LANTERN HILL MARK");
    EXPECT_EQ(session.chart(window).titles.at(3), u"ALL DEPARTMENTS");
}

TEST(FrmCSTORE, AShortLineOneEndsWithItsLineEnd)
{
    Session session;
    session.start(store().replaceLine(1, u"PCS05H1B 22JUL99  LANTERN HILL").text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"Store: LANTERN HILL\r");
}

TEST(FrmCSTORE, ProjectsTheNewestMonth)
{
    Session session;
    session.start(store().text());
    EXPECT_NEAR(valueOf(session.chart(window), 13, 1, 1), 52388.2555, 0.0001); // 128060.18 x 9/22
}

TEST(FrmCSTORE, WithoutYearToDateNothingIsRead)
{
    Session session;
    session.start(store().text());
    expectForeignCaptureLeaves(session, "frmCSTORE", blotted(store().text(), u"YTD"));
    EXPECT_FALSE(session.platform.over());
}

TEST(FrmCSTORE, QuantitiesNeedNoHeading)
{
    Session session;
    session.start(store().replaceLine(3, u"MON").text());
    EXPECT_EQ(session.events(), opening("frmCSTORE"));
}

TEST(FrmCSTORE, WithoutItsIdentifierTheProcessEnds)
{
    Session session;
    session.start(store().text());
    session.events();
    session.copy(store().put(1, 1, u"PCS05H1A").text());
    session.choose(window, "opt12", 1);
    EXPECT_EQ(session.events(), Events{"end"});
    EXPECT_TRUE(session.platform.over());
}

TEST(FrmCSTORE, WithoutBothTheWindowIsLeft)
{
    Session session;
    session.start(store().text());
    expectForeignCaptureLeaves(session, "frmCSTORE", u"");
    EXPECT_FALSE(session.platform.over());
}

TEST(FrmCSTORE, TheDayStandsNinePlacesBehindTheIdentifier)
{
    Session session;
    session.start(store().replaceLine(1, u"9 PCS05H1B9319").put(5, 17, u"   100.00").text());
    // The identifier begins in column 3: the day stands in columns 12 and 13.
    EXPECT_NEAR(valueOf(session.chart(window), 13, 1, 1), 0, 1e-9);
}

TEST(FrmCSTORE, ADayOfZeroProjectsNothing)
{
    Session session;
    session.start(store().put(1, 10, u"00").text());
    EXPECT_EQ(valueOf(session.chart(window), 13, 1, 0), 128060.18);
    EXPECT_EQ(valueOf(session.chart(window), 13, 1, 1), 0);
}

TEST(FrmCSTORE, SixMonthsAreTheSixNewestLines)
{
    Session session;
    session.start(store().text());
    session.choose(window, "opt12", 2);
    const Chart chart = session.chart(window);
    EXPECT_EQ(chart.labels, (Texts{u"FEB99", u"MAR99", u"APR99", u"MAY99", u"JUN99", u"JUL99", u""}));
    EXPECT_EQ(chart.series[0],
              (Numbers{115561.63, 132788.45, 140495.66, 160204.94, 166583.21, 128060.18, 0}));
}

TEST(FrmCSTORE, TwoYearsGoOnInTheRightHalf)
{
    Session session;
    session.start(store().text());
    session.choose(window, "opt12", 1);
    const Chart chart = session.chart(window);
    EXPECT_EQ(valueOf(chart, 25, 13), 153250.29);
    EXPECT_EQ(valueOf(chart, 25, 14), 147155.78);
    EXPECT_EQ(valueOf(chart, 25, 25), 138691.30);
}

} // namespace

} // namespace plotvue::test
