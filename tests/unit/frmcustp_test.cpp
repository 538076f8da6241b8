#include "support/chartwindow.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class FrmCustP : public testing::Test, public ChartWindow {
protected:
    FrmCustP() : ChartWindow("frmCustP", "custcat") { open(); }

    // The sample, with its "PCAT" moved to this position of the text.
    Text withCategoryAt(std::size_t position) const
    {
        return blotted(screen.text(), u"PCAT").replace(position - 1, 4, u"PCAT");
    }
};

TEST_F(FrmCustP, TakesTheWholeCustomerButTheLineEnd)
{
    screen.replaceLine(2, u"CUSTOMER: A:B, THE LONGEST NAME THAT THE HOST HAS EVER HAD TO PRINT IN A LINE ");
    refresh(screen.replaceLine(3, u"PCAT:ABC").put(20, 1, u"YTD"));
    EXPECT_EQ(title(2), u"Customer:  A:B, THE LONGEST NAME THAT THE HOST HAS EVER HAD TO PRINT IN A LINE ");
    EXPECT_EQ(title(3), u"Category: ABC\r");
}

TEST_F(FrmCustP, TakesTheTextsFromTheStartOfLinesWithoutAColon)
{
    refresh(screen.replaceLine(2, u"GREENWATER BROS").replaceLine(3, u"LUBRICANTS YTD"));
    EXPECT_EQ(title(2), u"Customer: GREENWATER BROS");
    EXPECT_EQ(title(3), u"Category: LUBRICANTS");
}

TEST_F(FrmCustP, RefusesACategoryFrom501On)
{
    EXPECT_EQ(refresh(withCategoryAt(500)), Events{});
    expectRefusal(withCategoryAt(501));
    expectRefusal(withCategoryAt(1500));
}

TEST_F(FrmCustP, AcceptsACategoryThatIsAbsentOrComesAgain)
{
    EXPECT_EQ(refresh(blotted(screen.text(), u"PCAT")), Events{});
    EXPECT_EQ(refresh(screen.text() + u"PCAT:FUELS\r\n"), Events{});
}

TEST_F(FrmCustP, AcceptsTheScreenOfACustomersPack)
{
    // The identifier is one character longer, so the day is read from the blank after it and the "2" of "24".
    EXPECT_EQ(refresh(screen.put(1, 1, u"QXM12P2 24FEB00").put(6, 1, u"FEB00")), Events{});
    EXPECT_EQ(title(2), u"Customer: 104420 GREENWATER BROS HAULING INC.");
    EXPECT_EQ(newest(Sales), 26295.09);
    EXPECT_NEAR(newest(Sales, 1), 26295.09 * 26 / 2, 1e-6);

    // The months of a real pack screen begin a line lower, so its dash line is taken for the newest month.
    EXPECT_THAT(refresh(sample("custpack")), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmCustP, HoldsThePlacesOfItsWordsInSixteenBits)
{
    for (const TextSpan word : {u"YTD", u"QTY", u"QXM12P"}) {
        const Text wordless = blotted(screen.text(), word);
        ChartWindow own(window, screen);
        own.open();
        EXPECT_EQ(own.refresh(withWordAt(wordless, word, 32767)), Events{});
        EXPECT_THAT(own.refresh(withWordAt(wordless, word, 32768)), ElementsAre(StartsWith("error ")));
    }
    // A position of the category that does not fit into 16 bits is an error; the capture is not just refused.
    const Text withoutCategory = blotted(screen.text(), u"PCAT");
    expectRefusal(withWordAt(withoutCategory, u"PCAT", 32767));
    EXPECT_THAT(refresh(withWordAt(withoutCategory, u"PCAT", 32768)), ElementsAre(StartsWith("error ")));
}

TEST_F(FrmCustP, LooksForItsWordsInTheirOrder)
{
    // The first absent word ends the search. So it is no error that the position of the later word does not
    // fit into 16 bits.
    expectRefusal(withWordAt(blotted(blotted(screen.text(), u"YTD"), u"QTY"), u"QTY", 32768));
    expectRefusal(withWordAt(blotted(blotted(screen.text(), u"QTY"), u"PCAT"), u"PCAT", 32768));
    expectRefusal(withWordAt(blotted(withCategoryAt(501), u"QXM12P"), u"QXM12P", 32768));
}

TEST_F(FrmCustP, HoldsThePlacesOfColonsInSixteenBits)
{
    screen.put(1, 17, u"YTD QTY").replaceLine(3, u"LUBRICANTS");
    for (const int line : {2, 3}) {
        const auto colonAt = [&](std::size_t column) {
            return CaptureBuilder(screen).replaceLine(line, Text(column - 1, u'X') + u":NAME");
        };
        ChartWindow own(window, screen);
        own.open();
        EXPECT_EQ(own.refresh(colonAt(32767)), Events{});
        EXPECT_TRUE(own.title(line).starts_with(line == 2 ? u"Customer: NAME" : u"Category: NAME"));
        EXPECT_THAT(own.refresh(colonAt(32768)), ElementsAre(StartsWith("error ")));
    }
}

} // namespace
} // namespace plotvue::test
