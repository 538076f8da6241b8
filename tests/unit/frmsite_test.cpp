#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

class FrmSite : public testing::Test, public ChartWindow {
protected:
    FrmSite() : ChartWindow("frmSite", "site") {}

    const double toCome = 75185.33 * 13 / 17; // the rest of the sample's newest month
};

TEST_F(FrmSite, TheFuelIsEightCharactersLong)
{
    open(screen.replaceLine(2, u"KIND: ABCDEFGHIJK SITE: X: SITE: Y"));
    EXPECT_EQ(title(3), u"Fuel: ABCDEFGH");
    EXPECT_EQ(title(2), u"C/L Site: X: SITE: Y");
}

TEST_F(FrmSite, ALineWithoutItsMarksIsCutFromItsStart)
{
    open(screen.replaceLine(2, u"ABCDEFGHIJK"));
    EXPECT_EQ(title(2), u"C/L Site: FGHIJK");
    EXPECT_EQ(title(3), u"Fuel: BCDEFGHI");
}

TEST_F(FrmSite, AShortFuelKeepsTheLineEnd)
{
    open(screen.replaceLine(2, u"SITE: 7 FUE"));
    EXPECT_EQ(title(2), u"C/L Site: 7 FUE");
    EXPECT_EQ(title(3), u"Fuel: 7 FUE\r");
}

TEST_F(FrmSite, WithoutQuantitiesTheHiddenWindowIsCharted)
{
    open();
    screen.replaceLine(3, u"MON   VOLUME     SALES").put(5, 17, u" 11111.11");
    EXPECT_EQ(refresh(screen), left());
    EXPECT_EQ(valueOf(chart(), 1), 11111.11);
    EXPECT_NEAR(valueOf(chart(), 1, 1), 11111.11 * 13 / 17, 1e-6);
    EXPECT_EQ(title(2), u"C/L Site: 0417 BRAMBLE HOLLOW");
}

TEST_F(FrmSite, TheFirstIdentifierTellsTheDay)
{
    open(screen.put(19, 1, u"05 CRD812H"));
    EXPECT_NEAR(valueOf(chart(), 1, 1), toCome, 1e-6);
}

TEST_F(FrmSite, TheDayNeedsItsTwoCharactersBeforeTheIdentifier)
{
    open(screen.replaceLine(1, u"17 CRD812H"));
    EXPECT_NEAR(valueOf(chart(), 1, 1), toCome, 1e-6);
    ChartWindow failing(window, screen);
    EXPECT_TRUE(failing.open(failing.screen.replaceLine(1, u"7 CRD812H")).back().starts_with("error "));
    EXPECT_TRUE(failing.session.platform.over());
}

} // namespace
} // namespace plotvue::test
