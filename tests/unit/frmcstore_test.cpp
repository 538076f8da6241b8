#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

class FrmCSTORE : public testing::Test, public ChartWindow {
protected:
    FrmCSTORE() : ChartWindow("frmCSTORE", "cstore") {}
};

TEST_F(FrmCSTORE, TheStoreIsCutFromLineOneAfterTheColumnOfLineTwosColon)
{
    open(screen.replaceLine(1, u"PCS05H1B 22JUL99:ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789ABCDEF")
             .replaceLine(2, u"           DEPARTMENT:A:B"));
    EXPECT_EQ(title(2), u"Store: FGHIJKLMNOPQRSTUVWXYZ0123456789ABCD");
    EXPECT_EQ(title(3), u"A:B");
}

TEST_F(FrmCSTORE, WithoutAColonTheStoreIsCutFromColumnOne)
{
    open(screen.replaceLine(2, u"ALL DEPARTMENTS"));
    EXPECT_EQ(title(2), u"Store: PCS05H1B 22JUL99  LANTERN HILL MARK");
    EXPECT_EQ(title(3), u"ALL DEPARTMENTS");
}

TEST_F(FrmCSTORE, AShortLineOneEndsWithItsLineEnd)
{
    open(screen.replaceLine(1, u"PCS05H1B 22JUL99  LANTERN HILL"));
    EXPECT_EQ(title(2), u"Store: LANTERN HILL\r");
}

TEST_F(FrmCSTORE, QuantitiesNeedNoHeading)
{
    EXPECT_EQ(open(screen.replaceLine(3, u"MON")), opening(window));
}

} // namespace
} // namespace plotvue::test
