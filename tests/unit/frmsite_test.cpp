#include "unit/history_fixture.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

namespace {

constexpr Name window = "frmSite";

HostScreen site()
{
    return hostScreen("site");
}

// The sample without the "QTY" of its headings.
HostScreen siteWithoutQuantity()
{
    return site().replaceLine(3, u"MON   VOLUME     SALES");
}

INSTANTIATE_TEST_SUITE_P(FrmSite, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmSite,
                             .sample = "site",
                             .newestLine = 5,
                             .dayLine = 1,
                             .dayColumn = 9,
                             .days = 30,
                             .day = 17,
                             .percent = hundredTimesQuotient,
                             .periods = {u"12", u"24", u"6"},
                             .types = {u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"},
                         }));

TEST(FrmSite, TitlesNameTheSiteAndTheFuel)
{
    Session session;
    session.start(site().text());
    const Chart chart = session.chart(window);
    EXPECT_EQ(
        chart.titles,
        (std::map<int, Text>{{1, u"Sales"}, {2, u"C/L Site: 0417 BRAMBLE HOLLOW"}, {3, u"Fuel: UNLEADED"}}));
}

TEST(FrmSite, TheFuelIsEightCharactersLong)
{
    Session session;
    session.start(site().replaceLine(2, u"KIND: ABCDEFGHIJK SITE: X: SITE: Y").text());
    EXPECT_EQ(session.chart(window).titles.at(3), u"Fuel: ABCDEFGH");
    EXPECT_EQ(session.chart(window).titles.at(2), u"C/L Site: X: SITE: Y");
}

TEST(FrmSite, ALineWithoutItsMarksIsCutFromItsStart)
{
    Session session;
    session.start(site().replaceLine(2, u"ABCDEFGHIJK").text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"C/L Site: FGHIJK");
    EXPECT_EQ(session.chart(window).titles.at(3), u"Fuel: BCDEFGHI");
}

TEST(FrmSite, AShortFuelKeepsTheLineEnd)
{
    Session session;
    session.start(site().replaceLine(2, u"SITE: 7 FUE").text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"C/L Site: 7 FUE");
    EXPECT_EQ(session.chart(window).titles.at(3), u"Fuel: 7 FUE\r");
}

TEST(FrmSite, ProjectsTheNewestMonth)
{
    Session session;
    session.start(site().text());
    EXPECT_NEAR(valueOf(session.chart(window), 13, 1, 1), 57494.6641, 0.0001); // 75185.33 x 13/17
}

TEST(FrmSite, SixMonthsAreTheSixNewestLines)
{
    Session session;
    session.start(site().text());
    session.choose(window, "opt12", 2);
    const Chart chart = session.chart(window);
    EXPECT_EQ(chart.labels, (Texts{u"JUN99", u"JUL99", u"AUG99", u"SEP99", u"OCT99", u"NOV99", u""}));
    EXPECT_EQ(chart.series[0], (Numbers{153775.02, 164659.85, 161556.91, 152436.08, 141100.53, 75185.33, 0}));
}

TEST(FrmSite, TwoYearsGoOnInTheRightHalf)
{
    Session session;
    session.start(site().text());
    session.choose(window, "opt12", 1);
    const Chart chart = session.chart(window);
    EXPECT_EQ(valueOf(chart, 25, 13), 112178.84); // line 17, left
    EXPECT_EQ(valueOf(chart, 25, 14), 125481.06); // line 6, right
    EXPECT_EQ(valueOf(chart, 25, 25), 95293.19);  // line 17, right
    EXPECT_EQ(chart.labels.front(), u"N97");
}

TEST(FrmSite, WithoutQuantitiesTheHiddenWindowIsCharted)
{
    Session session;
    session.start(siteWithoutQuantity().text());
    EXPECT_EQ(session.events(),
              (Events{"load startup", "show startup", "hide startup", "load frmSite", "show startup"}));
    EXPECT_FALSE(session.visible(window));
    EXPECT_TRUE(session.visible("startup"));
    const Chart chart = session.chart(window);
    EXPECT_EQ(valueOf(chart, 13, 1), 75185.33);
    EXPECT_EQ(chart.titles.at(2), u"C/L Site: 0417 BRAMBLE HOLLOW");
}

TEST(FrmSite, WithoutQuantitiesARefreshHidesAndChartsAllTheSame)
{
    Session session;
    session.start(site().text());
    session.events();
    session.copy(siteWithoutQuantity().put(5, 17, u" 11111.11").text());
    session.press(window, "cmdRefresh");
    EXPECT_EQ(session.events(), (Events{"hide frmSite", "show startup"}));
    EXPECT_EQ(valueOf(session.chart(window), 13, 1), 11111.11);
}

TEST(FrmSite, WithoutItsIdentifierTheProcessEnds)
{
    Session session;
    session.start(site().text());
    session.events();
    session.copy(site().put(1, 12, u"CRD812X").text());
    session.press(window, "cmdRefresh");
    EXPECT_EQ(session.events(), Events{"end"});
    EXPECT_TRUE(session.platform.over());
}

TEST(FrmSite, WithNeitherTheStartUpWindowShowsBeforeTheEnd)
{
    Session session;
    session.start(site().text());
    session.events();
    session.copy(u"");
    session.choose(window, "optSales", 1);
    EXPECT_EQ(session.events(), (Events{"hide frmSite", "show startup", "end"}));
}

TEST(FrmSite, TheFirstIdentifierTellsTheDay)
{
    Session session;
    session.start(site().put(19, 1, u"05 CRD812H").text());
    EXPECT_NEAR(valueOf(session.chart(window), 13, 1, 1), 57494.6641, 0.0001);
}

TEST(FrmSite, ThereMustBeRoomForTheDayInFrontOfTheIdentifier)
{
    Session fits;
    fits.start(site().replaceLine(1, u"17 CRD812H").text());
    EXPECT_NEAR(valueOf(fits.chart(window), 13, 1, 1), 57494.6641, 0.0001);
    Session fails;
    fails.start(site().replaceLine(1, u"7 CRD812H").text());
    EXPECT_TRUE(fails.events().back().starts_with("error "));
    EXPECT_TRUE(fails.platform.over());
}

} // namespace

} // namespace plotvue::test
