#include "unit/history_fixture.h"

#include <cmath>

namespace plotvue::test {

namespace {

constexpr Name window = "frmGLarch";

HostScreen ledger()
{
    return hostScreen("glhistory");
}

// One year of amounts, January first, in the newest column.
HostScreen ledgerWith(const std::vector<TextSpan>& amounts)
{
    HostScreen host = ledger();
    int line = 6;
    for (const TextSpan amount : amounts)
        host.put(line++, 62, Text(13 - amount.size(), u' ') + Text(amount));
    return host;
}

Numbers drawn(const HostScreen& host)
{
    Session session;
    session.start(host.text());
    return session.chart(window).series.at(0);
}

Texts labels(const HostScreen& host, int period = 0)
{
    Session session;
    session.start(host.text());
    session.choose(window, "opt12", period);
    return session.chart(window).labels;
}

// The last event of a start with the capture.
std::string outcome(const HostScreen& host)
{
    Session session;
    session.start(host.text());
    return session.events().back();
}

TEST(FrmGLarch, ShowsEveryAmountOfEveryYearTurned)
{
    const MonthlyTable table(ledger(), {{1, 12, 17, 62, -1},
                                        {13, 12, 17, 48, -1},
                                        {25, 12, 17, 34, -1},
                                        {37, 12, 17, 20, -1},
                                        {49, 12, 17, 6, -1}});
    const Texts months{u"DEC", u"NOV", u"OCT", u"SEP", u"AUG", u"JUL",
                       u"JUN", u"MAY", u"APR", u"MAR", u"FEB"};
    Session session;
    session.start(ledger().text());
    Texts newestFirst;
    for (int years = 1; years <= 5; ++years) {
        SCOPED_TRACE(years);
        session.choose(window, "opt12", years - 1);
        Numbers amounts;
        for (const double amount : table.numbers({0, 13}, 12 * years))
            amounts.push_back(-std::nearbyint(amount));
        newestFirst.insert(newestFirst.end(), months.begin(), months.end());
        newestFirst.push_back(Text(u"J9") + static_cast<char16_t>(u'9' + 1 - years));
        const Chart chart = session.chart(window);
        EXPECT_EQ(chart.series, std::vector<Numbers>{slots(amounts)});
        EXPECT_EQ(chart.labels, slots(newestFirst));
    }
}

TEST(FrmGLarch, OneYearIsTheNewestColumn)
{
    Session session;
    session.start(ledger().text());
    EXPECT_EQ(session.chart(window).series,
              (std::vector<Numbers>{{1277492, 1289092, 1089282, 950794, 827976, 754842, 775795, 768372,
                                     923265, 1028226, 1157194, 1338832, 0}}));
}

TEST(FrmGLarch, FiveYearsBeginInTheOldestColumn)
{
    Session session;
    session.start(ledger().text());
    session.choose(window, "opt12", 4);
    const Chart chart = session.chart(window);
    ASSERT_EQ(chart.series[0].size(), 61u);
    EXPECT_EQ(chart.series[0][0], 1010295);  // JAN95, line 6
    EXPECT_EQ(chart.series[0][11], 1025889); // DEC95, line 17
    EXPECT_EQ(chart.series[0][18], -34219);  // JUL96, a debit
    EXPECT_EQ(chart.series[0][43], -12406);  // AUG98: the half goes to the even neighbour
    EXPECT_EQ(chart.series[0][59], 1338832); // DEC99, line 17
    EXPECT_EQ(chart.labels[60], u"");
}

TEST(FrmGLarch, AnAmountIsExactlyItsThirteenColumns)
{
    const TextSpan amounts = u"00012345678917"
                             u"00010000000327"
                             u"00010000000537"
                             u"00010000000747"
                             u"0001000000095777";
    Session session;
    session.start(ledger().put(9, 6, amounts).text());
    session.choose(window, "opt12", 4);
    const Numbers values = session.chart(window).series[0];
    EXPECT_EQ(values[3], -1234567891);
    EXPECT_EQ(values[15], -1000000032);
    EXPECT_EQ(values[27], -1000000053);
    EXPECT_EQ(values[39], -1000000074);
    EXPECT_EQ(values[51], -1000000095);
}

TEST(FrmGLarch, AHalfGoesToTheEvenNeighbour)
{
    EXPECT_EQ(drawn(ledgerWith({u"1,234.50", u"1,235.50", u"0.50", u"1.50", u"2.51", u"0.49", u"", u"NONE",
                                u"9.00", u"8.00", u"7.00", u"-1.50"})),
              (Numbers{1234, 1236, 0, 2, 3, 0, 0, 0, 9, 8, 7, -2, 0}));
}

TEST(FrmGLarch, MostlyNegativeIsTurned)
{
    EXPECT_EQ(
        drawn(ledgerWith({u"-1", u"-2", u"-3", u"-4", u"-5", u"-6", u"-7", u"8", u"9", u"10", u"11", u"0"})),
        (Numbers{1, 2, 3, 4, 5, 6, 7, -8, -9, -10, -11, 0, 0}));
}

TEST(FrmGLarch, ATieKeepsTheSigns)
{
    EXPECT_EQ(
        drawn(ledgerWith({u"-1", u"-2", u"-3", u"-4", u"-5", u"-6", u"7", u"8", u"9", u"10", u"11", u"12"})),
        (Numbers{-1, -2, -3, -4, -5, -6, 7, 8, 9, 10, 11, 12, 0}));
}

TEST(FrmGLarch, WhatRoundsToNothingDoesNotCount)
{
    EXPECT_EQ(drawn(ledgerWith(
                  {u"-0.50", u"-0.50", u"-0.40", u"-5", u"5", u"0", u"0", u"0", u"0", u"0", u"0", u"0"})),
              (Numbers{0, 0, 0, -5, 5, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(FrmGLarch, ASingleAmountTurnsAnAccountWithoutOthers)
{
    EXPECT_EQ(drawn(ledgerWith({u"0", u"0", u"0", u"0", u"0", u"0", u"-1", u"0", u"0", u"0", u"0", u"0"})),
              (Numbers{0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0}));
}

TEST(FrmGLarch, ATrailingMinusReadsAndCountsAsPositive)
{
    EXPECT_EQ(drawn(ledgerWith(
                  {u"1-", u"2-", u"3-", u"4-", u"5-", u"6-", u"7-", u"-8", u"-9", u"-10", u"0", u"0"})),
              (Numbers{1, 2, 3, 4, 5, 6, 7, -8, -9, -10, 0, 0, 0}));
}

TEST(FrmGLarch, OnlyTheYearsShownDecideTheSign)
{
    Session session;
    session.start(
        ledgerWith({u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10", u"11", u"12"}).text());
    EXPECT_EQ(session.chart(window).series[0][11], 12);
    session.choose(window, "opt12", 2); // 23 negative ones and a positive one before them
    EXPECT_EQ(session.chart(window).series[0][35], -12);
}

TEST(FrmGLarch, AmountsMustFitWholeNumbersOf32Bits)
{
    EXPECT_EQ(drawn(ledgerWith({u"2147483647", u"1", u"1"}))[0], -2147483647);
    EXPECT_TRUE(outcome(ledgerWith({u"2147483648"})).starts_with("error "));
    EXPECT_TRUE(outcome(ledgerWith({u"-2147483649"})).starts_with("error "));
    EXPECT_TRUE(outcome(ledgerWith({u"-2147483648"})).starts_with("error ")); // when it is turned
    EXPECT_EQ(drawn(ledgerWith(
                  {u"-2147483648", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1"}))[0],
              -2147483648.0);
}

TEST(FrmGLarch, JanuaryIsMarkedWithItsYear)
{
    const HostScreen host = ledger().replaceLine(4, u"ACTIVITY FROM 01/1998 TO 12/2002");
    EXPECT_EQ(labels(host), (Texts{u"J02", u"FEB", u"MAR", u"APR", u"MAY", u"JUN", u"JUL", u"AUG", u"SEP",
                                   u"OCT", u"NOV", u"DEC", u""}));
    EXPECT_EQ(labels(host, 1)[0], u"J01");
    EXPECT_EQ(labels(host, 2)[0], u"J00");
    EXPECT_EQ(labels(host, 3)[0], u"J99");
    EXPECT_EQ(labels(host, 4)[0], u"J98");
}

TEST(FrmGLarch, ARowThatHoldsJanuaryAnywhereIsMarked)
{
    EXPECT_EQ(labels(ledger().put(7, 76, u"JAN"))[1], u"F99");
}

TEST(FrmGLarch, MonthNamesStandInColumnsTwoToFour)
{
    EXPECT_EQ(labels(ledger().put(8, 1, u"XMARX"))[2], u"MAR");
    EXPECT_EQ(labels(ledger().put(6, 1, u"XJANX"))[0], u"J99");
}

TEST(FrmGLarch, TheFirstYearIsTheFourCharactersBehindTheFirstSlash)
{
    EXPECT_EQ(labels(ledger().replaceLine(4, u"A/99017/1980"), 4)[0], u"J01");
    EXPECT_EQ(labels(ledger().replaceLine(4, u"99987 TO 2002"), 4)[0], u"J98"); // no slash: columns 1 to 4
    EXPECT_EQ(labels(ledger().replaceLine(4, u"A/NONE"), 4)[0], u"J");          // years 0 to 4
    EXPECT_EQ(labels(ledger().replaceLine(4, u"A/123"), 4)[0], u"J3");
    EXPECT_EQ(labels(ledger().replaceLine(4, u"A/9999"))[0], u"J00"); // of 10003
    EXPECT_TRUE(outcome(ledger().replaceLine(4, u"A/9E9 ")).starts_with("error "));
}

TEST(FrmGLarch, TheFirstYearIsReadBeforeTheLinesRunOut)
{
    Session session;
    session.start(u"PFMGLARCH1\r\nACCOUNT\r\nLOCATION\r\nFROM 01/9E9\r\n");
    EXPECT_TRUE(session.events().back().starts_with("error "));
}

TEST(FrmGLarch, TitlesNameTheAccountAndTheLocation)
{
    Session session;
    session.start(ledger().text());
    const Chart chart = session.chart(window);
    EXPECT_EQ(chart.titles, (std::map<int, Text>{{2, u"G/L History for Acct: 4010-00 HEATING OIL SALES"},
                                                 {3, u"ALL TERMINALS"}}));
    EXPECT_FALSE(chart.decimals);
}

TEST(FrmGLarch, TitlesAreCutBehindTheFirstColonOrTakenWhole)
{
    Session session;
    session.start(ledger().replaceLine(2, u"A:B:C").replaceLine(3, u"D: E:F").text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"G/L History for Acct: B:C");
    EXPECT_EQ(session.chart(window).titles.at(3), u" E:F");
    session.copy(ledger().replaceLine(2, u"ABC").replaceLine(3, u"DEF").text());
    session.press(window, "cmdRefresh");
    EXPECT_EQ(session.chart(window).titles.at(2), u"G/L History for Acct: ABC");
    EXPECT_EQ(session.chart(window).titles.at(3), u"DEF");
}

TEST(FrmGLarch, OptionsAreYearsAndNothingElse)
{
    Session session;
    session.start(ledger().text());
    EXPECT_EQ(session.events(), opening("frmGLarch"));
    expectButtons(session, window);
    const OptionGroup years = session.options(window, "opt12");
    EXPECT_EQ(fromTheTop(years), (Texts{u"1", u"2", u"3", u"4", u"5"}));
    EXPECT_EQ(indicesFromTheTop(years), (std::vector{0, 1, 2, 3, 4}));
    EXPECT_EQ(years.chosen, std::vector{0});
    EXPECT_EQ(frameCaptions(frmGLarch), Texts{u"Years"});
    EXPECT_THROW(session.options(window, "optSales"), std::out_of_range);
    EXPECT_EQ(session.caption(window), u"Plotvue!");
}

TEST(FrmGLarch, WithoutItsIdentifierNothingIsRead)
{
    Session session;
    session.start(ledger().text());
    expectForeignCaptureLeaves(session, "frmGLarch", ledger().put(1, 1, u"PFMGLARCH2").text());
}

TEST(FrmGLarch, ShortCapturesNeverReturn)
{
    expectShortCaptureSpins("frmGLarch", "glhistory");
}

TEST(FrmGLarch, ExitKeepsTheChart)
{
    Session session;
    session.start(ledger().text());
    expectExitKeepsTheChart(session, "frmGLarch", ledgerWith({u"-5"}).text());
}

} // namespace

} // namespace plotvue::test
