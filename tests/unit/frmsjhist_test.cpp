#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

class FrmSJHIST : public testing::Test, public ChartWindow {
protected:
    FrmSJHIST() : ChartWindow("frmSJHIST", "salesjournal") { open(); }
};

TEST_F(FrmSJHIST, CutsItsTitlesAtTheirMarks)
{
    screen.replaceLine(2, u"W:ABCDEFGHIJKLMNOPQRSTUVWXYZ CTR:A CTR:B ");
    refresh(screen.replaceLine(3, u"C: A:B "));
    EXPECT_EQ(title(2), u"WH: ABCDEFGHIJKLMNOPQRSTUVWXY  PftCtr: A CTR:B ");
    EXPECT_EQ(title(3), u"Category:  A:B ");
}

TEST_F(FrmSJHIST, StartsTheProfitCentreAtColumn4WithoutItsMark)
{
    refresh(screen.replaceLine(2, u"WH:001 HARBOR ROAD"));
    EXPECT_EQ(title(2), u"WH: 001 HARBOR ROAD\r  PftCtr: 001 HARBOR ROAD");
}

TEST_F(FrmSJHIST, TakesTheTextsFromTheStartOfLinesWithoutAColon)
{
    refresh(screen.replaceLine(2, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ").replaceLine(3, u"DISTILLATES"));
    EXPECT_EQ(title(2), u"WH: ABCDEFGHIJKLMNOPQRSTUVWXY  PftCtr: DEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(title(3), u"Category: DISTILLATES");
}

TEST_F(FrmSJHIST, FindsItsIdentifierHoweverFarDown)
{
    const Text unnamed = blotted(screen.text(), u"QXMSJHIST");
    refresh(withWordAt(unnamed, u"QXMSJHIST          31", 40000));
    EXPECT_EQ(newest(Sales, 1), 0);
    refresh(withWordAt(unnamed, u"QXMSJHIST          28", 40000));
    EXPECT_NEAR(newest(Sales, 1), 29896.12 * 3 / 28, 1e-6);
}

} // namespace
} // namespace plotvue::test
