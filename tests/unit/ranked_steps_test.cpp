// The way through a ranked list: a click on a row, Back and Down, and the ends.
#include "profit_fixture.h"

namespace plotvue::test {
namespace {

const Events endOfTheList{"message : End of list", "hide frmM2MpftA", "unload frmM2MpftA"};

class RankedSteps : public testing::Test {
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

TEST_F(RankedSteps, ARowOpensItsCharts)
{
    start(gains(3));
    session.events();
    session.clickRow(m2m, gainsGrid, 2);
    EXPECT_EQ(session.events(), (Events{"load frmM2MpftA", "show frmM2MpftA"}));
    EXPECT_EQ(customer(), u"Customer: 10002");
    EXPECT_TRUE(session.visible(m2m));
}

TEST_F(RankedSteps, AnotherRowIsDrawnWithTheNextStepOrType)
{
    start(gains(4));
    session.clickRow(m2m, gainsGrid, 2);
    session.events();
    session.clickRow(m2m, gainsGrid, 4);
    EXPECT_EQ(session.events(), Events{});
    EXPECT_EQ(customer(), u"Customer: 10002");
    EXPECT_EQ(session.file("plotvue1.txt"), "10004,\"GROUP 4   \"\r\n");
    session.choose(m2mA, "optSales", 1);
    EXPECT_EQ(customer(), u"Customer: 10004");
    session.clickRow(m2m, gainsGrid, 2);
    session.press(m2mA, "cmdNext");
    EXPECT_EQ(customer(), u"Customer: 10003");
    session.press(m2mA, "cmdExit");
    session.clickRow(m2m, gainsGrid, 1);
    EXPECT_EQ(customer(), u"Customer: 10001");
}

TEST_F(RankedSteps, DownGoesThroughTheListToItsEnd)
{
    start(gains(4));
    session.clickRow(m2m, gainsGrid, 1);
    session.events();
    for (const TextSpan next : {u"Customer: 10002", u"Customer: 10003", u"Customer: 10004"}) {
        session.press(m2mA, "cmdNext");
        EXPECT_EQ(customer(), next);
    }
    EXPECT_EQ(session.events(), Events{});
    session.press(m2mA, "cmdNext");
    EXPECT_EQ(session.events(), endOfTheList);
    EXPECT_FALSE(session.loaded(m2mA));
    EXPECT_EQ(session.file("plotvue1.txt"), "10004,\"GROUP 4   \"\r\n");
}

TEST_F(RankedSteps, BackGoesThroughTheListToItsBeginning)
{
    start(gains(4));
    session.clickRow(m2m, gainsGrid, 4);
    session.events();
    for (const TextSpan next : {u"Customer: 10003", u"Customer: 10002", u"Customer: 10001"}) {
        session.press(m2mA, "cmdBack");
        EXPECT_EQ(customer(), next);
    }
    EXPECT_EQ(session.events(), Events{});
    session.press(m2mA, "cmdBack");
    EXPECT_EQ(session.events(), endOfTheList);
    EXPECT_EQ(session.file("plotvue1.txt"), "10001,\"GROUP 1   \"\r\n");
    session.clickRow(m2m, gainsGrid, 3);
    EXPECT_EQ(session.events(), (Events{"load frmM2MpftA", "show frmM2MpftA"}));
    EXPECT_EQ(customer(), u"Customer: 10003");
}

TEST_F(RankedSteps, AListOfOneEndsBothWays)
{
    start(gains(1));
    for (const Name button : {"cmdBack", "cmdNext"}) {
        session.clickRow(m2m, gainsGrid, 1);
        session.events();
        session.press(m2mA, button);
        EXPECT_EQ(session.events(), endOfTheList);
    }
}

TEST_F(RankedSteps, CloseUnloadsTheChartsAndLeavesTheList)
{
    start(gains(2));
    for (const bool titleBar : {false, true}) {
        session.clickRow(m2m, gainsGrid, 1);
        session.events();
        titleBar ? session.close(m2mA) : session.press(m2mA, "cmdExit");
        EXPECT_EQ(session.events(), (Events{"hide frmM2MpftA", "unload frmM2MpftA"}));
        EXPECT_TRUE(session.visible(m2m));
    }
}

TEST_F(RankedSteps, ReopenedChartsBeginWithSalesAgain)
{
    start(gains(2));
    session.clickRow(m2m, gainsGrid, 1);
    session.choose(m2mA, "optSales", 3);
    session.press(m2mA, "cmdExit");
    session.clickRow(m2m, gainsGrid, 1);
    EXPECT_EQ(session.options(m2mA, "optSales").chosen, std::vector{0});
    EXPECT_EQ(session.chart(m2mA).titles.at(1), u"Sales");
}

TEST_F(RankedSteps, OfTwoEntriesAlikeTheFirstIsTaken)
{
    MonthToMonthScreen screen = gains(4);
    for (const int number : {2, 3})
        screen.put(ProfitScreen::lineOf(number), 14, u"10777")
            .put(ProfitScreen::lineOf(number), 51, u"TWICE  ");
    start(screen);
    EXPECT_EQ(customers(session, m2m), (Texts{u"10001", u"10777", u"10777", u"10004"}));
    session.clickRow(m2m, gainsGrid, 3);
    EXPECT_EQ(session.chart(m2mA).series[0][12], 21);
    session.press(m2mA, "cmdBack");
    EXPECT_EQ(customer(), u"Customer: 10001");
    // The second of them cannot be passed: it is found as the first.
    for (int press = 0; press < 3; ++press) {
        session.press(m2mA, "cmdNext");
        EXPECT_EQ(customer(), u"Customer: 10777");
    }
    EXPECT_EQ(session.chart(m2mA).series[0][12], 21);
}

TEST_F(RankedSteps, TheSameCustomerWithAnotherGroupIsAnother)
{
    MonthToMonthScreen screen = gains(3);
    for (const int number : {1, 2, 3})
        screen.put(ProfitScreen::lineOf(number), 14, u"10777");
    start(screen);
    session.clickRow(m2m, gainsGrid, 3);
    EXPECT_EQ(session.chart(m2mA).series[0][12], 31);
    session.press(m2mA, "cmdBack");
    EXPECT_EQ(session.chart(m2mA).series[0][12], 21);
}

TEST_F(RankedSteps, AHundredEntriesAreListedAndWalked)
{
    // Two lines each: with their months they would not fit into 500 lines.
    CaptureBuilder screen(1);
    screen.put(1, 1, u"MONTH TO MONTH PROFIT ANALYSIS");
    for (int entry = 1; entry <= 100; ++entry) {
        const auto line = static_cast<std::size_t>(2 * entry);
        screen.put(line, 1, u"RANK:" + rightAligned(digits(entry), 3) + u"     " + digits(10000 + entry));
        screen.put(line + 1, 1, u"GAIN:  5");
    }
    start(screen);
    EXPECT_EQ(session.grid(m2m).rows, 101);
    session.clickRow(m2m, gainsGrid, 100);
    EXPECT_EQ(shown(session, m2mA).substr(0, 15), u"Customer: 10100");
    session.press(m2mA, "cmdBack");
    EXPECT_EQ(customer(), u"Customer: 10099");
    session.press(m2mA, "cmdNext");
    session.events();
    session.press(m2mA, "cmdNext");
    EXPECT_EQ(session.events(), endOfTheList);
}

} // namespace
} // namespace plotvue::test
