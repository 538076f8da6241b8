#include "support/chartwindow.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class FrmCustomerE : public testing::Test, public ChartWindow {
protected:
    FrmCustomerE() : ChartWindow("frmCustomerE", "customer") { open(); }
};

TEST_F(FrmCustomerE, CutsLongNames)
{
    screen.replaceLine(2, u"CUSTOMER:ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
    refresh(screen.replaceLine(3, u"PRODUCT:ABCDEFGHIJKLM"));
    EXPECT_EQ(title(2), u"Customer: ABCDEFGHIJKLMNOPQRSTUVWXYZ012345678");
    EXPECT_EQ(title(3), u"Product: ABCDEFGHIJ");
}

TEST_F(FrmCustomerE, KeepsTheLineEndAfterShortNames)
{
    refresh(screen.replaceLine(2, u"CUSTOMER: SHORT:CO").replaceLine(3, u"PRODUCT:12"));
    EXPECT_EQ(title(2), u"Customer:  SHORT:CO\r");
    EXPECT_EQ(title(3), u"Product: 12\r");
}

TEST_F(FrmCustomerE, TakesTheNamesFromTheStartOfLinesWithoutAColon)
{
    refresh(screen.replaceLine(2, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789").replaceLine(3, u"PRODUCT 0020"));
    EXPECT_EQ(title(2), u"Customer: ABCDEFGHIJKLMNOPQRSTUVWXYZ012345678");
    EXPECT_EQ(title(3), u"Product: PRODUCT 00");
}

TEST_F(FrmCustomerE, HoldsThePlaceOfItsIdentifierInSixteenBits)
{
    const Text unnamed = blotted(screen.text(), u"QXM12E1");
    EXPECT_EQ(refresh(withWordAt(unnamed, u"QXM12E1", 32767)), Events{});
    EXPECT_THAT(refresh(withWordAt(unnamed, u"QXM12E1", 32768)), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmCustomerE, HoldsOtherPlacesInFull)
{
    refresh(screen.replaceLine(3, Text(40000, u'X') + u":0020450002"));
    EXPECT_EQ(title(3), u"Product: 0020450002");
}

} // namespace
} // namespace plotvue::test
