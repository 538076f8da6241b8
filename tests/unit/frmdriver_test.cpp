// The windows of the driver and the truck screen, which do the same.
#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

struct Delivery {
    Name window;
    std::string_view sample;
    Text prefix; // of the title
};

class DeliveryWindow : public testing::TestWithParam<Delivery>, public ChartWindow {
protected:
    DeliveryWindow() : ChartWindow(GetParam().window, GetParam().sample) {}

    const Text prefix = GetParam().prefix;
};

TEST_P(DeliveryWindow, TitlesAreCutAfterTheFirstColon)
{
    open(screen.replaceLine(2, u"A:BCD:EFG").replaceLine(3, u"HI:JKL:MN"));
    EXPECT_EQ(title(2), prefix + u"CD:EFG");
    EXPECT_EQ(title(3), u"Category: JKL:MN");
}

TEST_P(DeliveryWindow, LinesWithoutAColonAreCutFromTheirStart)
{
    open(screen.replaceLine(2, u"ABCDE").replaceLine(3, u"FGHIJ"));
    EXPECT_EQ(title(2), prefix + u"BCDE");
    EXPECT_EQ(title(3), u"Category: FGHIJ");
}

TEST_P(DeliveryWindow, WithNeitherWordItIsLeftOnce)
{
    open();
    expectRefusal(blotted(blotted(screen.text(), u"YTD"), u"QTY"));
}

TEST_P(DeliveryWindow, WithoutItsIdentifierTheHiddenWindowIsCharted)
{
    open();
    screen.put(1, 1, u"SOMETHING ELSE 12").put(6, 1, u"JUN").put(6, 17, u"   111.11");
    EXPECT_EQ(refresh(screen), left());
    EXPECT_FALSE(session.visible(window));
    EXPECT_FALSE(session.platform.over());
    EXPECT_EQ(valueOf(chart(), 1), 111.11);
    EXPECT_NEAR(valueOf(chart(), 1, 1), 166.665, 1e-9); // columns 16 and 17 hold the day: 12 of 30
}

INSTANTIATE_TEST_SUITE_P(Windows, DeliveryWindow,
                         testing::Values(Delivery{"frmDriver", "driver", u"Driver: "},
                                         Delivery{"frmTruck", "truck", u"Truck: "}),
                         [](const auto& one) { return std::string(one.param.window); });

TEST(DriverAndTruck, TheSameScreenDiffersInNothingButTheTitle)
{
    ChartWindow driver("frmDriver", "driver"), truck("frmTruck", driver.screen);
    driver.open();
    truck.open(truck.screen.put(1, 1, u"QXM855TH"));
    EXPECT_EQ(driver.chart().series, truck.chart().series);
    EXPECT_EQ(driver.chart().labels, truck.chart().labels);
    EXPECT_EQ(driver.title(2), u"Driver: 031 T. OAKHALLOW");
    EXPECT_EQ(truck.title(2), u"Truck: 031 T. OAKHALLOW");
    EXPECT_EQ(driver.title(3), truck.title(3));
}

} // namespace
} // namespace plotvue::test
