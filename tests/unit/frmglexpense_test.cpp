#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

class FrmGLexpense : public testing::Test, public ChartWindow {
protected:
    FrmGLexpense() : ChartWindow("frmGLexpense", "glexpense") {}
};

TEST_F(FrmGLexpense, CommasAreDroppedAndTheLeadingNumberCounts)
{
    screen.put(7, 6, u"    1,234.56").put(8, 6, u"      12.50-").put(9, 6, u"     (12.50)");
    screen.put(10, 6, u"            ").put(11, 6, u"  -2,345,678").put(12, 6, u"        NONE");
    open();
    EXPECT_EQ(chart(0, HalfYear).series[0], (Numbers{0, -2345678, 0, 0, 12.5, 1234.56, 0}));
}

TEST_F(FrmGLexpense, TitlesAreCutAfterTheFirstColon)
{
    open(screen.replaceLine(2, u"A:B:C").replaceLine(3, u"D: E:F"));
    EXPECT_EQ(title(2), u"Expense/Volume for Acct:B:C");
    EXPECT_EQ(title(3), u" E:F");
}

TEST_F(FrmGLexpense, LinesWithoutAColonAreTakenWhole)
{
    open(screen.replaceLine(2, u"ABC").replaceLine(3, u"DEF"));
    EXPECT_EQ(title(2), u"Expense/Volume for Acct:ABC");
    EXPECT_EQ(title(3), u"DEF");
}

} // namespace
} // namespace plotvue::test
