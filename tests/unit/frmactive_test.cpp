#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

class FrmActive : public testing::Test, public ChartWindow {
protected:
    FrmActive() : ChartWindow("frmActive", "active") {}
};

TEST_F(FrmActive, CommasAreDropped)
{
    open(screen.put(5, 6, u"   1,204").put(6, 6, u"       -").put(7, 6, u"        "));
    EXPECT_EQ(valueOf(chart(), 1), 1204);
    EXPECT_EQ(valueOf(chart(), 2), 0);
    EXPECT_EQ(valueOf(chart(), 3), 0);
}

TEST_F(FrmActive, TheSecondTitleIsTheWholeOfLineTwo)
{
    open(screen.replaceLine(2, u" COMPANY: 01: ALL ").replaceLine(3, u"A:B"));
    EXPECT_EQ(title(2), u"Count of Active Customers - Fuels");
    EXPECT_EQ(title(3), u" COMPANY: 01: ALL ");
}

} // namespace
} // namespace plotvue::test
