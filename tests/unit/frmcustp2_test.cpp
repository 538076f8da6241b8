#include "support/chartwindow.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class FrmCustP2 : public testing::Test, public ChartWindow {
protected:
    FrmCustP2() : ChartWindow("frmCustP2", "custpack") { open(); }
};

TEST_F(FrmCustP2, NeverTakesTheCustomerPastColumn34)
{
    const std::pair<TextSpan, TextSpan> customers[] = {
        {u"SHORT CO", u"SHORT CO"},
        {u"ABCDEFGHIJKLMNOPQRSTUVWX", u"ABCDEFGHIJKLMNOPQRSTUVWX"},    // ends in column 33
        {u"ABCDEFGHIJKLMNOPQRSTUVWXY", u"ABCDEFGHIJKLMNOPQRSTUVWXY"},  // ends in column 34
        {u"ABCDEFGHIJKLMNOPQRSTUVWXYZ", u"ABCDEFGHIJKLMNOPQRSTUVWXY"}, // ends in column 35
        {u" A:B  ", u" A:B  "},
        {u"", u""},
    };
    for (const auto& [printed, taken] : customers) {
        refresh(screen.replaceLine(2, Text(u"CUSTOMER:").append(printed)));
        EXPECT_EQ(title(2), Text(u"Customer: ").append(taken));
    }
}

TEST_F(FrmCustP2, TakesTheCustomerFromTheStartOfALineWithoutAColon)
{
    refresh(screen.replaceLine(2, u"GREENWATER HAULING"));
    EXPECT_EQ(title(2), u"Customer: GREENWATER HAULING");
    refresh(screen.replaceLine(2, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"));
    EXPECT_EQ(title(2), u"Customer: ABCDEFGHIJKLMNOPQRSTUVWXYZ01234567");
}

TEST_F(FrmCustP2, EndsTheProcessWhenTheColonIsAfterColumn34)
{
    refresh(screen.replaceLine(2, Text(33, u'X') + u":NAME"));
    EXPECT_EQ(title(2), u"Customer: ");
    EXPECT_THAT(refresh(screen.replaceLine(2, Text(34, u'X') + u":NAME")),
                ElementsAre(StartsWith("error Line 2 of the copied text: ")));
}

TEST_F(FrmCustP2, KeepsTheBlanksInsideItsFields)
{
    screen.replaceLine(3, u"PRODUCT:  20 45  001  PACK: 5  TIN");
    refresh(screen.replaceLine(4, u"WHSE:  2  YTD"));
    EXPECT_EQ(title(3), u"Prod/Pak/WH:   20 45  00 / 5 / 2 ");
}

TEST_F(FrmCustP2, KeepsTheLineEndAfterShortFields)
{
    refresh(screen.replaceLine(3, u"PACK:05").replaceLine(4, u"WHSE: 7").put(20, 1, u"YTD"));
    EXPECT_EQ(title(3), u"Prod/Pak/WH:  5\r /05\r/7\r");
}

TEST_F(FrmCustP2, CountsItsFieldsFromTheStartOfLinesWithoutTheirMarks)
{
    refresh(screen.replaceLine(3, u"ABCDEFGHIJKLMNOP").replaceLine(4, u"123456 YTD"));
    EXPECT_EQ(title(3), u"Prod/Pak/WH:  BCDEFGHIJK /EFG/234");
    refresh(screen.replaceLine(3, u"PRODUCT: 0020610015 PAK 055"));
    EXPECT_EQ(title(3), u"Prod/Pak/WH:  0020610015 /UCT/234");
}

TEST_F(FrmCustP2, IsLeftForACategoryScreen)
{
    expectRefusal(sample("custcat")); // its identifier is "QXM12P"
}

TEST_F(FrmCustP2, AcceptsACategoryMarkAnywhere)
{
    EXPECT_EQ(refresh(screen.text() + u"PCAT:FUELS\r\n"), Events{});
}

TEST_F(FrmCustP2, HoldsThePlacesOfItsWordsInSixteenBits)
{
    for (const TextSpan word : {u"YTD", u"QTY", u"QXM12P2"}) {
        const Text wordless = blotted(screen.text(), word);
        ChartWindow own(window, screen);
        own.open();
        EXPECT_EQ(own.refresh(withWordAt(wordless, word, 32767)), Events{});
        EXPECT_THAT(own.refresh(withWordAt(wordless, word, 32768)), ElementsAre(StartsWith("error ")));
    }
}

TEST_F(FrmCustP2, LooksForItsWordsInTheirOrder)
{
    // The first absent word ends the search. So it is no error that the position of the later word does not
    // fit into 16 bits.
    expectRefusal(withWordAt(blotted(blotted(screen.text(), u"YTD"), u"QTY"), u"QTY", 32768));
    expectRefusal(withWordAt(blotted(blotted(screen.text(), u"QTY"), u"QXM12P2"), u"QXM12P2", 32768));
}

TEST_F(FrmCustP2, HoldsThePlacesOfMarksInSixteenBits)
{
    const struct {
        std::size_t line;
        Text before, mark;
    } marks[] = {{3, u"", u":"}, {3, u"P:", u"PACK:"}, {4, u"", u":"}};
    for (const auto& each : marks) {
        const auto markAt = [&](std::size_t column) {
            const Text filled =
                each.before + Text(column - 1 - each.before.size(), u'X') + each.mark + u" 4711";
            return CaptureBuilder(screen).put(1, 18, u"YTD QTY").replaceLine(each.line, filled);
        };
        ChartWindow own(window, screen);
        own.open();
        EXPECT_EQ(own.refresh(markAt(32767)), Events{});
        EXPECT_NE(own.title(3).find(u"47"), Text::npos);
        EXPECT_THAT(own.refresh(markAt(32768)), ElementsAre(StartsWith("error ")));
    }
}

} // namespace
} // namespace plotvue::test
