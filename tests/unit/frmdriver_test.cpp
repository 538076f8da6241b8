// The driver's and the truck's window: one procedure, two screens.
#include "unit/history_fixture.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

namespace {

INSTANTIATE_TEST_SUITE_P(FrmDriver, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmDriver,
                             .sample = "driver",
                             .newestLine = 6,
                             .dayLine = 1,
                             .dayColumn = 17,
                             .days = 28,
                             .day = 19,
                             .percent = hundredTimesQuotient,
                             .periods = {u"12", u"24", u"6"},
                             .types = {u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"},
                             .typeOrder = {0, 2, 1, 3, 4},
                         }));

INSTANTIATE_TEST_SUITE_P(FrmTruck, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmTruck,
                             .sample = "truck",
                             .newestLine = 6,
                             .dayLine = 1,
                             .dayColumn = 17,
                             .days = 31,
                             .day = 6,
                             .percent = hundredTimesQuotient,
                             .periods = {u"12", u"24", u"6"},
                             .types = {u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"},
                             .typeOrder = {4, 3, 1, 2, 0},
                         }));

struct Delivery {
    Name window;
    std::string_view sample;
    TextSpan identifier, subject, prefix, category;
    double restOfSales; // of the newest month
};

class DeliveryWindow : public testing::TestWithParam<Delivery> {
protected:
    const Delivery& delivery = GetParam();
    const Name name = delivery.window;
    const std::string window{name};
    HostScreen host = hostScreen(delivery.sample);
    Session session;

    Events left() const { return {"hide " + window, "show startup"}; }
    Text withPrefix(TextSpan text) const { return Text(delivery.prefix) + Text(text); }
};

TEST_P(DeliveryWindow, TitlesNameTheSubjectAndTheCategory)
{
    session.start(host.text());
    const auto titles = session.chart(name).titles;
    EXPECT_EQ(titles.at(2), delivery.subject);
    EXPECT_EQ(titles.at(3), delivery.category);
    EXPECT_EQ(titles.size(), 3u);
}

TEST_P(DeliveryWindow, TitlesAreCutBehindTheFirstColon)
{
    session.start(host.replaceLine(2, u"A:BCD:EFG").replaceLine(3, u"HI:JKL:MN").text());
    EXPECT_EQ(session.chart(name).titles.at(2), withPrefix(u"CD:EFG"));
    EXPECT_EQ(session.chart(name).titles.at(3), u"Category: JKL:MN");
}

TEST_P(DeliveryWindow, LinesWithoutAColonAreCutFromTheirStart)
{
    session.start(host.replaceLine(2, u"ABCDE").replaceLine(3, u"FGHIJ").text());
    EXPECT_EQ(session.chart(name).titles.at(2), withPrefix(u"BCDE"));
    EXPECT_EQ(session.chart(name).titles.at(3), u"Category: FGHIJ");
}

TEST_P(DeliveryWindow, ProjectsTheNewestMonth)
{
    session.start(host.text());
    EXPECT_NEAR(valueOf(session.chart(name), 13, 1, 1), delivery.restOfSales, 0.0001);
}

TEST_P(DeliveryWindow, WithoutYearToDateNothingIsRead)
{
    session.start(host.text());
    expectForeignCaptureLeaves(session, window, blotted(host.text(), u"YTD"));
}

TEST_P(DeliveryWindow, WithoutQuantitiesNothingIsRead)
{
    session.start(host.text());
    expectForeignCaptureLeaves(session, window, host.replaceLine(4, u"MON   VOLUME").text());
}

TEST_P(DeliveryWindow, WithNeitherWordTheWindowLeavesOnce)
{
    session.start(host.text());
    expectForeignCaptureLeaves(session, window, blotted(host.replaceLine(4, u"MON").text(), u"YTD"));
}

TEST_P(DeliveryWindow, OpenedWithoutTheWordsItStaysEmpty)
{
    session.start(blotted(host.text(), u"YTD"));
    EXPECT_EQ(session.events(),
              (Events{"load startup", "show startup", "hide startup", "load " + window, "show startup"}));
    EXPECT_FALSE(session.visible(name));
    EXPECT_TRUE(session.chart(name).series.empty());
    EXPECT_TRUE(session.chart(name).titles.empty());
}

TEST_P(DeliveryWindow, WithoutItsIdentifierTheHiddenWindowIsCharted)
{
    session.start(host.text());
    session.events();
    const Text sales = u"   111.11";
    host.put(1, 1, u"SOMETHING ELSE 12").put(6, 1, u"JUN").put(6, 17, sales);
    session.copy(host.text());
    session.press(name, "cmdRefresh");
    EXPECT_EQ(session.events(), left());
    EXPECT_FALSE(session.visible(name));
    EXPECT_FALSE(session.platform.over());
    const Chart chart = session.chart(name);
    EXPECT_EQ(valueOf(chart, 13, 1), 111.11);
    EXPECT_NEAR(valueOf(chart, 13, 1, 1), 166.665, 1e-9); // day 12 of 30, from columns 16 and 17
    EXPECT_EQ(chart.titles.at(2), delivery.subject);
}

TEST_P(DeliveryWindow, TheDayStandsSixteenPlacesBehindTheIdentifier)
{
    host.replaceLine(1, u"  " + Text(delivery.identifier) + u"901234593167").put(6, 1, u"JUN");
    session.start(host.put(6, 17, u"   100.00").text());
    // The identifier begins in column 3: the day stands in columns 19 and 20.
    EXPECT_NEAR(valueOf(session.chart(name), 13, 1, 1), 100 * (30.0 / 31 - 1), 1e-9);
}

TEST_P(DeliveryWindow, SixMonthsAreTheSixNewestLines)
{
    session.start(host.put(6, 17, u"     6.00").put(11, 17, u"    11.00").text());
    session.choose(name, "opt12", 2);
    const Chart chart = session.chart(name);
    EXPECT_EQ(chart.series[0].size(), 7u);
    EXPECT_EQ(chart.series[0][5], 6);
    EXPECT_EQ(chart.series[0][0], 11);
    EXPECT_EQ(chart.series[0][6], 0);
    EXPECT_EQ(chart.labels[6], u"");
}

TEST_P(DeliveryWindow, TwoYearsGoOnInTheRightHalf)
{
    session.start(host.put(18, 17, u"    13.00").put(7, 58, u"    14.00").put(18, 58, u"    25.00").text());
    session.choose(name, "opt12", 1);
    const Chart chart = session.chart(name);
    EXPECT_EQ(valueOf(chart, 25, 13), 13);
    EXPECT_EQ(valueOf(chart, 25, 14), 14);
    EXPECT_EQ(chart.series[0][0], 25);
}

INSTANTIATE_TEST_SUITE_P(
    Windows, DeliveryWindow,
    testing::Values(Delivery{"frmDriver", "driver", u"QXM855DH", u"Driver: 031 T. OAKHALLOW", u"Driver: ",
                             u"Category: HEATING OIL", 65004.2337}, // 137231.16 x 9/19, leap year or not
                    Delivery{"frmTruck", "truck", u"QXM855TH", u"Truck: 14 TANK WAGON 2800 GAL", u"Truck: ",
                             u"Category: FARM DIESEL", 97608.4167}), // 23426.02 x 25/6
    [](const auto& one) { return std::string(one.param.window); });

TEST(DriverAndTruck, TheSameScreenDiffersInNothingButTheTitle)
{
    HostScreen host = hostScreen("driver");
    Session driver, truck;
    driver.start(host.text());
    truck.start(host.put(1, 1, u"QXM855TH").text());
    const Chart one = driver.chart("frmDriver"), other = truck.chart("frmTruck");
    EXPECT_EQ(one.series, other.series);
    EXPECT_EQ(one.labels, other.labels);
    EXPECT_EQ(one.titles.at(2), u"Driver: 031 T. OAKHALLOW");
    EXPECT_EQ(other.titles.at(2), u"Truck: 031 T. OAKHALLOW");
    EXPECT_EQ(one.titles.at(3), other.titles.at(3));
}

} // namespace

} // namespace plotvue::test
