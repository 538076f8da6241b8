#include "unit/history_fixture.h"

namespace plotvue::test {

namespace {

constexpr Name window = "frmGLexpense";

enum Type { Dollars, Volume, Cents };

HostScreen expense()
{
    return hostScreen("glexpense");
}

TEST(FrmGLexpense, ShowsEveryFigureOfEveryMonth)
{
    // Lines 7 to 18 on the left, 7 to 19 on the right; the month in progress on line 6 is left out.
    const MonthlyTable table(expense(), {{1, 12, 7, 1}, {13, 13, 7, 41}});
    const struct {
        Type type;
        TextSpan caption;
        int decimals;
        Columns columns;
    } types[] = {{Dollars, u"Dollars", 0, {5, 12}},
                 {Volume, u"Volume", 0, {17, 14}},
                 {Cents, u"Cents per Gallon", 2, {30, 8}}};
    Session session;
    session.start(expense().text());
    for (const auto [period, months] : periodOptions) {
        session.choose(window, "opt12", period);
        for (const auto& type : types) {
            SCOPED_TRACE(testing::Message() << months << " months, data type " << type.type);
            session.choose(window, "optSales", type.type);
            const Chart chart = session.chart(window);
            EXPECT_EQ(chart.series, std::vector<Numbers>{slots(table.numbers(type.columns, months))});
            EXPECT_EQ(chart.labels, slots(table.labels(months)));
            EXPECT_EQ(chart.titles.at(1), type.caption);
            EXPECT_EQ(chart.decimals, type.decimals);
        }
    }
}

TEST(FrmGLexpense, AFigureIsExactlyItsColumns)
{
    Session session;
    session.start(expense().put(8, 6, ruler).put(8, 46, ruler).text());
    session.choose(window, "opt12", 1);
    const double expected[] = {314159265358, 97932384626433, 38327950};
    for (const Type type : {Dollars, Volume, Cents}) {
        session.choose(window, "optSales", type);
        EXPECT_EQ(valueOf(session.chart(window), 25, 2), expected[type]);
        EXPECT_EQ(valueOf(session.chart(window), 25, 14), expected[type]);
    }
}

TEST(FrmGLexpense, CommasAreDroppedAndTheLeadingNumberCounts)
{
    HostScreen host = expense();
    host.put(7, 6, u"    1,234.56").put(8, 6, u"      12.50-").put(9, 6, u"     (12.50)");
    host.put(10, 6, u"            ").put(11, 6, u"  -2,345,678").put(12, 6, u"        NONE");
    Session session;
    session.start(host.text());
    session.choose(window, "opt12", 2);
    EXPECT_EQ(session.chart(window).series[0], (Numbers{0, -2345678, 0, 0, 12.5, 1234.56, 0}));
}

TEST(FrmGLexpense, TitlesNameTheAccountAndTheLocation)
{
    Session session;
    session.start(expense().text());
    EXPECT_EQ(session.chart(window).titles,
              (std::map<int, Text>{{1, u"Dollars"},
                                   {2, u"Expense/Volume for Acct: 6210-00 DELIVERY FLEET REPAIRS"},
                                   {3, u"ALL TERMINALS"}}));
}

TEST(FrmGLexpense, TitlesAreCutBehindTheFirstColon)
{
    Session session;
    session.start(expense().replaceLine(2, u"A:B:C").replaceLine(3, u"D: E:F").text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"Expense/Volume for Acct:B:C");
    EXPECT_EQ(session.chart(window).titles.at(3), u" E:F");
}

TEST(FrmGLexpense, LinesWithoutAColonAreTakenWhole)
{
    Session session;
    session.start(expense().replaceLine(2, u"ABC").replaceLine(3, u"DEF").text());
    EXPECT_EQ(session.chart(window).titles.at(2), u"Expense/Volume for Acct:ABC");
    EXPECT_EQ(session.chart(window).titles.at(3), u"DEF");
}

TEST(FrmGLexpense, OptionsStandInTheirOrder)
{
    Session session;
    session.start(expense().text());
    EXPECT_EQ(session.events(), opening("frmGLexpense"));
    expectButtons(session, window);
    expectMonthsFrame(session, window);
    const OptionGroup types = session.options(window, "optSales");
    EXPECT_EQ(fromTheTop(types), (Texts{u"Cents/Gallon", u"Dollars", u"Volume"}));
    EXPECT_EQ(indicesFromTheTop(types), (std::vector{2, 0, 1}));
    EXPECT_EQ(types.chosen, std::vector{0});
    EXPECT_EQ(frameCaptions(frmGLexpense), (Texts{u"Months", u"Data Type"}));
    EXPECT_EQ(session.caption(window), u"Plotvue!");
}

TEST(FrmGLexpense, SixMonthsLeaveOutTheTopRow)
{
    Session session;
    session.start(expense().text());
    session.choose(window, "opt12", 2);
    const Chart chart = session.chart(window);
    EXPECT_EQ(chart.labels, (Texts{u"APR99", u"MAY99", u"JUN99", u"JUL99", u"AUG99", u"SEP99", u""}));
    EXPECT_EQ(chart.series,
              (std::vector<Numbers>{{56966.65, 43541.25, 41455.73, 44131.99, 36343.37, 53526.38, 0}}));
}

TEST(FrmGLexpense, TwoYearsEndOnLineNineteenOfTheRightHalf)
{
    Session session;
    session.start(expense().text());
    session.choose(window, "opt12", 1);
    const Chart chart = session.chart(window);
    EXPECT_EQ(chart.series[0][0], 45972.73);
    EXPECT_EQ(chart.labels[0], u"S97");
    EXPECT_EQ(chart.series[0][12], 49425.37); // line 7, right
    EXPECT_EQ(chart.series[0][13], 51142.29); // line 18, left
    EXPECT_EQ(chart.series[0][24], 53526.38);
    EXPECT_EQ(chart.labels[24], u"S99");
}

TEST(FrmGLexpense, NoMonthIsProjectedAndNoNameIsNeeded)
{
    Session session;
    session.start(expense().put(7, 1, u"?????").text());
    EXPECT_FALSE(session.platform.over());
    EXPECT_EQ(session.chart(window).series.size(), 1u);
    EXPECT_EQ(session.chart(window).labels[12], u"?????");
}

TEST(FrmGLexpense, WithoutItsIdentifierNothingIsRead)
{
    Session session;
    session.start(expense().text());
    expectForeignCaptureLeaves(session, "frmGLexpense", expense().put(1, 1, u"PFMEXP2").text());
}

TEST(FrmGLexpense, ShortCapturesNeverReturn)
{
    expectShortCaptureSpins("frmGLexpense", "glexpense");
}

TEST(FrmGLexpense, ExitKeepsTheChart)
{
    Session session;
    session.start(expense().text());
    expectExitKeepsTheChart(session, "frmGLexpense", expense().put(9, 6, u"        9.00").text());
}

} // namespace

} // namespace plotvue::test
