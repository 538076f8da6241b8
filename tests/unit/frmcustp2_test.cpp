#include "app/screens.h"
#include "support/capturebuilder.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

using testing::ElementsAre;
using testing::StartsWith;

INSTANTIATE_TEST_SUITE_P(FrmCustP2, SalesHistoryTest,
                         testing::Values(SalesHistory{
                             .screen = frmCustP2,
                             .sample = "custpack",
                             .newestLine = 7,
                             .dayLine = 1,
                             .dayColumn = 9,
                             .days = 31,
                             .day = 24,
                             .percent = quotientTimesHundred,
                             .periods = {u"12 Month", u"24 Month", u"6 Month"},
                             .types = {u"Sales", u"Profit", u"Volume", u"GP %", u"G/P Units"},
                         }));

class FrmCustP2 : public testing::Test {
protected:
    FrmCustP2() { tester.start(screen.text()); }

    HostScreen screen{sample("custpack")};
    HistoryTester tester{"frmCustP2"};
};

TEST_F(FrmCustP2, NamesTheCustomerTheProductThePackAndTheWarehouse)
{
    EXPECT_EQ(tester.title(2), u"Customer: 104420 GREENWATER HAULING");
    EXPECT_EQ(tester.title(3), u"Prod/Pak/WH:  0020610015 /055/001");
}

TEST_F(FrmCustP2, ChartsItsSample)
{
    tester.choose(Volume, Months24);
    const Chart chart = tester.chart();
    EXPECT_EQ(chart.series[0][24], 7544.31);
    EXPECT_EQ(chart.series[0][11], 8991.43);
    EXPECT_EQ(chart.series[0][0], 8151.31);
    EXPECT_EQ(chart.labels[24], u"M00");
    EXPECT_EQ(chart.labels[11], u"A99");
    EXPECT_EQ(chart.labels[0], u"M98");
    EXPECT_NEAR(chart.series[1][24], 7544.31 * 7 / 24, 1e-6); // 7 of 31 days are still to come
}

TEST_F(FrmCustP2, NeverTakesTheCustomerPastColumn34)
{
    const std::pair<TextSpan, TextSpan> customers[] = {
        {u"SHORT CO", u"SHORT CO"},
        {u"ABCDEFGHIJKLMNOPQRSTUVWX", u"ABCDEFGHIJKLMNOPQRSTUVWX"},    // ends in column 33
        {u"ABCDEFGHIJKLMNOPQRSTUVWXY", u"ABCDEFGHIJKLMNOPQRSTUVWXY"},  // 34
        {u"ABCDEFGHIJKLMNOPQRSTUVWXYZ", u"ABCDEFGHIJKLMNOPQRSTUVWXY"}, // 35
        {u" A:B  ", u" A:B  "},
        {u"", u""},
    };
    for (const auto& [printed, taken] : customers) {
        tester.refresh(HostScreen(screen).replaceLine(2, Text(u"CUSTOMER:").append(printed)).text());
        EXPECT_EQ(tester.title(2), Text(u"Customer: ").append(taken));
    }
}

TEST_F(FrmCustP2, TakesTheCustomerFromTheStartOfALineWithoutAColon)
{
    tester.refresh(HostScreen(screen).replaceLine(2, u"GREENWATER HAULING").text());
    EXPECT_EQ(tester.title(2), u"Customer: GREENWATER HAULING");
    tester.refresh(HostScreen(screen).replaceLine(2, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789").text());
    EXPECT_EQ(tester.title(2), u"Customer: ABCDEFGHIJKLMNOPQRSTUVWXYZ01234567");
}

TEST_F(FrmCustP2, EndsTheProcessWhenTheColonStandsBehindColumn34)
{
    tester.refresh(HostScreen(screen).replaceLine(2, Text(33, u'X') + u":NAME").text());
    EXPECT_EQ(tester.title(2), u"Customer: ");
    EXPECT_THAT(tester.refresh(HostScreen(screen).replaceLine(2, Text(34, u'X') + u":NAME").text()),
                ElementsAre(StartsWith("error ")));
}

TEST_F(FrmCustP2, KeepsTheBlanksInsideItsFields)
{
    HostScreen changed(screen);
    changed.replaceLine(3, u"PRODUCT:  20 45  001  PACK: 5  TIN").replaceLine(4, u"WHSE:  2  YTD");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(3), u"Prod/Pak/WH:   20 45  00 / 5 / 2 ");
}

TEST_F(FrmCustP2, KeepsTheLineEndBehindShortFields)
{
    HostScreen changed(screen);
    changed.replaceLine(3, u"PACK:05").replaceLine(4, u"WHSE: 7").put(20, 1, u"YTD");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(3), u"Prod/Pak/WH:  5\r /05\r/7\r");
}

TEST_F(FrmCustP2, CountsItsFieldsFromTheStartOfLinesWithoutTheirMarks)
{
    HostScreen changed(screen);
    changed.replaceLine(3, u"ABCDEFGHIJKLMNOP").replaceLine(4, u"123456 YTD");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(3), u"Prod/Pak/WH:  BCDEFGHIJK /EFG/234");

    changed.replaceLine(3, u"PRODUCT: 0020610015 PAK 055");
    tester.refresh(changed.text());
    EXPECT_EQ(tester.title(3), u"Prod/Pak/WH:  0020610015 /UCT/234");
}

TEST_F(FrmCustP2, IsLeftWhenAWordOfItsScreenIsAbsent)
{
    tester.expectRefusal(blotted(screen.text(), u"YTD"));
    tester.expectRefusal(blotted(screen.text(), u"QTY"));
    tester.expectRefusal(blotted(screen.text(), u"YTD") + u"ytd");
    tester.expectRefusal(blotted(screen.text(), u"QTY") + u"Qty");
    tester.expectRefusal(sample("custcat")); // "QXM12P" is not enough
    tester.expectRefusal(u"");
}

TEST_F(FrmCustP2, HidesItselfAtOnceWhenAWordIsAbsent)
{
    for (const TextSpan word : {u"YTD", u"QTY"}) {
        HistoryTester refused("frmCustP2");
        refused.start(blotted(screen.text(), word));
        EXPECT_FALSE(refused.session.visible("frmCustP2"));
        EXPECT_TRUE(refused.session.visible("startup"));
        EXPECT_TRUE(refused.chart().series.empty());
    }
}

TEST_F(FrmCustP2, AcceptsACategoryMarkAnywhere)
{
    EXPECT_THAT(tester.refresh(screen.text() + u"PCAT:FUELS\r\n"), ElementsAre());
}

TEST_F(FrmCustP2, HoldsThePlacesOfItsWordsInSixteenBits)
{
    for (const TextSpan word : {u"YTD", u"QTY", u"QXM12P2"}) {
        const Text wordless = blotted(screen.text(), word);
        HistoryTester own("frmCustP2");
        own.start(screen.text());
        EXPECT_THAT(own.refresh(withWordAt(wordless, word, 32767)), ElementsAre());
        EXPECT_THAT(own.refresh(withWordAt(wordless, word, 32768)), ElementsAre(StartsWith("error ")));
    }
}

TEST_F(FrmCustP2, LooksForItsWordsInTheirOrder)
{
    // The first word that is absent ends the search, before a later one is found too far down to be held.
    tester.expectRefusal(withWordAt(blotted(blotted(screen.text(), u"YTD"), u"QTY"), u"QTY", 32768));
    tester.expectRefusal(withWordAt(blotted(blotted(screen.text(), u"QTY"), u"QXM12P2"), u"QXM12P2", 32768));
}

TEST_F(FrmCustP2, HoldsThePlacesOfMarksInSixteenBits)
{
    struct {
        int line;
        Text before, mark;
    } const marks[] = {{3, u"", u":"}, {3, u"P:", u"PACK:"}, {4, u"", u":"}};
    for (const auto& [line, before, mark] : marks) {
        const auto markAt = [&, &line = line, &before = before, &mark = mark](std::size_t column) {
            const Text filled = before + Text(column - 1 - before.size(), u'X') + mark + u" 4711";
            return HostScreen(screen).put(1, 18, u"YTD QTY").replaceLine(line, filled).text();
        };
        HistoryTester own("frmCustP2");
        own.start(screen.text());
        EXPECT_THAT(own.refresh(markAt(32767)), ElementsAre());
        EXPECT_NE(own.title(3).find(u"47"), Text::npos);
        EXPECT_THAT(own.refresh(markAt(32768)), ElementsAre(StartsWith("error ")));
    }
}

} // namespace plotvue::test
