#include "support/chartwindow.h"
#include "support/monthlytable.h"

#include <cmath>
#include <gtest/gtest.h>

namespace plotvue::test {
namespace {

class FrmGLarch : public testing::Test {
protected:
    // The window, opened with the capture and then set to show this number of years.
    std::unique_ptr<ChartWindow> drawing(const CaptureBuilder& capture, int years = 1)
    {
        auto drawn = std::make_unique<ChartWindow>("frmGLarch", capture);
        drawn->open();
        drawn->choose(0, years - 1);
        return drawn;
    }
    Numbers values(const CaptureBuilder& capture) { return drawing(capture)->chart().series.at(0); }
    Text label(std::size_t month, const CaptureBuilder& capture, int years = 1)
    {
        return drawing(capture, years)->chart().labels.at(month);
    }
    static bool fails(const CaptureBuilder& capture)
    {
        return ChartWindow("frmGLarch", capture).open().back().starts_with("error ");
    }

    // The sample, with its line of this number replaced.
    CaptureBuilder withLine(std::size_t line, TextSpan text) const
    {
        return CaptureBuilder(ledger).replaceLine(line, text);
    }

    // The sample with other amounts in the newest year, January first.
    CaptureBuilder withAmounts(const std::vector<TextSpan>& amounts) const
    {
        CaptureBuilder capture = ledger;
        std::size_t line = 6;
        for (const TextSpan amount : amounts)
            capture.put(line++, 62, Text(13 - amount.size(), u' ') + Text(amount));
        return capture;
    }

    const CaptureBuilder ledger{TextSpan(sample("glhistory"))};
};

TEST_F(FrmGLarch, ShowsEveryAmountOfEveryYearTurned)
{
    const MonthlyTable table(ledger, {{1, 12, 17, 62, -1},
                                      {13, 12, 17, 48, -1},
                                      {25, 12, 17, 34, -1},
                                      {37, 12, 17, 20, -1},
                                      {49, 12, 17, 6, -1}});
    const Texts months{u"DEC", u"NOV", u"OCT", u"SEP", u"AUG", u"JUL",
                       u"JUN", u"MAY", u"APR", u"MAR", u"FEB"};
    Texts newestFirst, full;
    for (int years = 1; years <= 5; ++years) {
        SCOPED_TRACE(years);
        Numbers amounts;
        for (const double amount : table.numbers({0, 13}, 12 * years))
            amounts.push_back(-std::nearbyint(amount));
        newestFirst.insert(newestFirst.end(), months.begin(), months.end());
        const auto yearsDigit = static_cast<char16_t>(u'9' + 1 - years);
        newestFirst.push_back(Text(u"J9") + yearsDigit);
        for (const Text& month : months)
            full.push_back(month + u'9' + yearsDigit);
        full.push_back(Text(u"JAN9") + yearsDigit);
        const auto drawn = drawing(ledger, years);
        EXPECT_EQ(drawn->chart().series, std::vector<Numbers>{slots(amounts)});
        EXPECT_EQ(drawn->chart().labels, slots(newestFirst));
        EXPECT_EQ(drawn->chart().fullLabels, slots(full));
        EXPECT_FALSE(drawn->chart().decimals);
    }
}

TEST_F(FrmGLarch, FiveYearsBeginInTheOldestColumn)
{
    const auto chart = drawing(ledger, 5)->chart();
    ASSERT_EQ(chart.series[0].size(), 61u);
    EXPECT_EQ(chart.series[0][0], 1010295);  // JAN95, line 6
    EXPECT_EQ(chart.series[0][11], 1025889); // DEC95, line 17
    EXPECT_EQ(chart.series[0][18], -34219);  // JUL96, a debit
    EXPECT_EQ(chart.series[0][43], -12406);  // AUG98: the half goes to the even neighbour
    EXPECT_EQ(chart.series[0][48], 1277492); // JAN99
    EXPECT_EQ(chart.series[0][59], 1338832); // DEC99, line 17
    EXPECT_EQ(chart.labels[60], u"");
}

TEST_F(FrmGLarch, AnAmountIsExactlyItsThirteenColumns)
{
    const TextSpan amounts = u"00012345678917"
                             u"00010000000327"
                             u"00010000000537"
                             u"00010000000747"
                             u"0001000000095777";
    const Numbers values = drawing(CaptureBuilder(ledger).put(9, 6, amounts), 5)->chart().series[0];
    EXPECT_EQ(values[3], -1234567891);
    EXPECT_EQ(values[15], -1000000032);
    EXPECT_EQ(values[27], -1000000053);
    EXPECT_EQ(values[39], -1000000074);
    EXPECT_EQ(values[51], -1000000095);
}

TEST_F(FrmGLarch, AHalfGoesToTheEvenNeighbour)
{
    EXPECT_EQ(values(withAmounts({u"1,234.50", u"1,235.50", u"0.50", u"1.50", u"2.51", u"0.49", u"", u"NONE",
                                  u"9.00", u"8.00", u"7.00", u"-1.50"})),
              (Numbers{1234, 1236, 0, 2, 3, 0, 0, 0, 9, 8, 7, -2, 0}));
}

TEST_F(FrmGLarch, AmountsThatAreMostlyNegativeAreTurned)
{
    EXPECT_EQ(values(withAmounts(
                  {u"-1", u"-2", u"-3", u"-4", u"-5", u"-6", u"-7", u"8", u"9", u"10", u"11", u"0"})),
              (Numbers{1, 2, 3, 4, 5, 6, 7, -8, -9, -10, -11, 0, 0}));
}

TEST_F(FrmGLarch, ATieKeepsTheSigns)
{
    EXPECT_EQ(values(withAmounts(
                  {u"-1", u"-2", u"-3", u"-4", u"-5", u"-6", u"7", u"8", u"9", u"10", u"11", u"12"})),
              (Numbers{-1, -2, -3, -4, -5, -6, 7, 8, 9, 10, 11, 12, 0}));
}

TEST_F(FrmGLarch, AmountsThatRoundToZeroDoNotCount)
{
    EXPECT_EQ(values(withAmounts(
                  {u"-0.50", u"-0.50", u"-0.40", u"-5", u"5", u"0", u"0", u"0", u"0", u"0", u"0", u"0"})),
              (Numbers{0, 0, 0, -5, 5, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(FrmGLarch, ASingleAmountTurnsAnAccountWithoutOthers)
{
    EXPECT_EQ(values(withAmounts({u"0", u"0", u"0", u"0", u"0", u"0", u"-1", u"0", u"0", u"0", u"0", u"0"})),
              (Numbers{0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}));
}

TEST_F(FrmGLarch, ATrailingMinusReadsAndCountsAsPositive)
{
    EXPECT_EQ(values(withAmounts(
                  {u"1-", u"2-", u"3-", u"4-", u"5-", u"6-", u"7-", u"-8", u"-9", u"-10", u"0", u"0"})),
              (Numbers{1, 2, 3, 4, 5, 6, 7, -8, -9, -10, 0, 0, 0}));
}

TEST_F(FrmGLarch, OnlyTheYearsShownDecideTheSign)
{
    const CaptureBuilder capture =
        withAmounts({u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10", u"11", u"12"});
    EXPECT_EQ(values(capture)[11], 12);
    // The two years before add 23 negative amounts and one positive.
    EXPECT_EQ(drawing(capture, 3)->chart().series[0][35], -12);
}

TEST_F(FrmGLarch, AmountsMustFitWholeNumbersOf32Bits)
{
    EXPECT_EQ(values(withAmounts({u"2147483647", u"1", u"1"}))[0], -2147483647);
    EXPECT_TRUE(fails(withAmounts({u"2147483648"})));
    EXPECT_TRUE(fails(withAmounts({u"-2147483649"})));
    EXPECT_TRUE(fails(withAmounts({u"-2147483648"}))); // 2147483648 after its sign is turned
    EXPECT_EQ(values(withAmounts(
                  {u"-2147483648", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1"}))[0],
              -2147483648.0);
}

TEST_F(FrmGLarch, JanuaryIsMarkedWithItsYear)
{
    const CaptureBuilder capture = withLine(4, u"ACTIVITY FROM 01/1998 TO 12/2002");
    EXPECT_EQ(drawing(capture)->chart().labels, (Texts{u"J02", u"FEB", u"MAR", u"APR", u"MAY", u"JUN", u"JUL",
                                                       u"AUG", u"SEP", u"OCT", u"NOV", u"DEC", u""}));
    EXPECT_EQ(label(0, capture, 2), u"J01");
    EXPECT_EQ(label(0, capture, 3), u"J00");
    EXPECT_EQ(label(0, capture, 4), u"J99");
    EXPECT_EQ(label(0, capture, 5), u"J98");
}

TEST_F(FrmGLarch, ARowThatHoldsJanuaryAnywhereIsMarked)
{
    EXPECT_EQ(label(1, CaptureBuilder(ledger).put(7, 76, u"JAN")), u"F99");
}

TEST_F(FrmGLarch, MonthNamesAreReadInColumnsTwoToFour)
{
    EXPECT_EQ(label(2, CaptureBuilder(ledger).put(8, 1, u"XMARX")), u"MAR");
    EXPECT_EQ(label(0, CaptureBuilder(ledger).put(6, 1, u"XJANX")), u"J99");
}

TEST_F(FrmGLarch, TheFirstYearIsTheFourCharactersAfterTheFirstSlash)
{
    EXPECT_EQ(label(0, withLine(4, u"A/99017/1980"), 5), u"J01");
    EXPECT_EQ(label(0, withLine(4, u"99987 TO 2002"), 5), u"J98"); // no slash: the year is in columns 1 to 4
    EXPECT_EQ(label(0, withLine(4, u"A/NONE"), 5), u"J");          // no number, so the years are 0 to 4
    EXPECT_EQ(label(0, withLine(4, u"A/123"), 5), u"J3");
    EXPECT_EQ(label(0, withLine(4, u"A/9999")), u"J00"); // the newest year is 10003
    EXPECT_TRUE(fails(withLine(4, u"A/9E9 ")));
}

TEST_F(FrmGLarch, TheFirstYearIsReadBeforeTheLinesRunOut)
{
    const TextSpan capture = u"PFMGLARCH1\r\nACCOUNT\r\nLOCATION\r\nFROM 01/9E9\r\n";
    EXPECT_TRUE(fails(CaptureBuilder(capture)));
}

TEST_F(FrmGLarch, TitlesAreCutAfterTheFirstColonOrTakenWhole)
{
    const auto drawn = drawing(withLine(2, u"A:B:C").replaceLine(3, u"D: E:F"));
    EXPECT_EQ(drawn->title(2), u"G/L History for Acct: B:C");
    EXPECT_EQ(drawn->title(3), u" E:F");
    drawn->refresh(withLine(2, u"ABC").replaceLine(3, u"DEF"));
    EXPECT_EQ(drawn->title(2), u"G/L History for Acct: ABC");
    EXPECT_EQ(drawn->title(3), u"DEF");
}

} // namespace
} // namespace plotvue::test
