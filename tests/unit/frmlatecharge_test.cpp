#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

enum Type { Total, Open, Paid, PaidPercent, PaidLost };

class FrmLateCharge : public testing::Test, public ChartWindow {
protected:
    FrmLateCharge() : ChartWindow("frmLateCharge", "latecharge") {}
};

TEST_F(FrmLateCharge, PaidAndLostAreWhatIsNoLongerOpen)
{
    screen.put(5, 7, u"   500.00").put(5, 17, u"   120.00").put(5, 26, u"   300.00");
    screen.put(6, 7, u" 1,000.00").put(6, 17, u"   900.00").put(6, 26, u"   250.00");
    open();
    EXPECT_EQ(valueOf(chart(PaidPercent), 2), 60);
    EXPECT_EQ(valueOf(chart(PaidLost), 2, 0), 300);
    EXPECT_EQ(valueOf(chart(PaidLost), 2, 1), 80);
    EXPECT_EQ(valueOf(chart(PaidLost), 3, 1), -150);
}

TEST_F(FrmLateCharge, NothingIsDividedByATotalOfZero)
{
    open(screen.put(5, 7, u"         ").put(6, 7, u"     0.00").put(7, 7, u"     NONE"));
    for (const int month : {2, 3, 4})
        EXPECT_EQ(valueOf(chart(PaidPercent), month), 0);
    EXPECT_FALSE(session.platform.over());
}

TEST_F(FrmLateCharge, TheSecondSeriesIsHiddenAgain)
{
    open();
    EXPECT_EQ(chart().hidden, std::set{1});
    for (const Type type : {Total, Open, Paid, PaidPercent}) {
        EXPECT_TRUE(chart(PaidLost).hidden.empty());
        const auto shown = chart(type);
        EXPECT_EQ(shown.hidden, std::set{1});
        EXPECT_EQ(shown.series[1], Numbers(14));
    }
}

TEST_F(FrmLateCharge, EveryAmountOfARowIsRead)
{
    // Paid amounts are not charted, but one that is too large for a double is an error all the same.
    EXPECT_TRUE(open(screen.put(5, 26, u"    9E999")).back().starts_with("error "));
}

} // namespace
} // namespace plotvue::test
