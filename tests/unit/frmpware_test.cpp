#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

class FrmPware : public testing::Test, public ChartWindow {
protected:
    FrmPware() : ChartWindow("frmPware", "prodware") { open(); }
};

TEST_F(FrmPware, CutsItsTitlesAtTheirColumns)
{
    screen.replaceLine(2, u"P:x0123456789y:").put(2, 43, u"aBCDE ");
    screen.replaceLine(3, u"P:x4567y:").put(3, 43, u"aVWXYZb").replaceLine(4, u"W: 12345:");
    refresh(screen);
    EXPECT_EQ(title(2), u"0123456789  BCDE ");
    EXPECT_EQ(title(3), u"Pack: 4567VWXYZ  WH:  12");
}

TEST_F(FrmPware, LeavesTheLineEndOutOfItsMainTitleOnly)
{
    CaptureBuilder changed(screen);
    refresh(changed.replaceLine(2, u"PRODUCT: 123").replaceLine(3, u"PACK: 55").replaceLine(4, u"WHSE:1"));
    EXPECT_EQ(title(2), u"123  ");
    EXPECT_EQ(title(3), u"Pack: 55\r  WH: 1\r");

    refresh(screen.replaceLine(3, Text(u"PACK: 0055").append(34, u' ').append(u"TIN")));
    EXPECT_EQ(title(3), u"Pack: 0055 TIN\r  WH: 001");
}

TEST_F(FrmPware, CountsItsTitlesFromTheStartOfLinesWithoutAColon)
{
    screen.replaceLine(2, u"ABCDEFGHIJKLM").replaceLine(3, u"ABCDEFGHIJKLM").replaceLine(4, u"123456");
    refresh(screen);
    EXPECT_EQ(title(2), u"BCDEFGHIJK  ");
    EXPECT_EQ(title(3), u"Pack: BCDE  WH: 123");
}

TEST_F(FrmPware, FindsItsIdentifierHoweverFarDown)
{
    const Text unnamed = blotted(screen.text(), u"QXM32C");
    EXPECT_EQ(refresh(withWordAt(unnamed, u"QXM32C", 40000)), Events{});
    EXPECT_EQ(newest(Sales, 1), 0);
    EXPECT_EQ(refresh(withWordAt(unnamed, u"QXM32C          15", 40000)), Events{});
    EXPECT_EQ(newest(Sales, 1), 109601.92); // half of the month is to come
}

} // namespace
} // namespace plotvue::test
