#include "unit/history_fixture.h"

namespace plotvue::test {

namespace {

constexpr Name window = "frmActive";

enum Type { Fuels, Lubes, Cardlock, All };

HostScreen active()
{
    return hostScreen("active");
}

Chart chart(Session& session, Type type)
{
    session.choose(window, "optSales", type);
    return session.chart(window);
}

TEST(FrmActive, ShowsEveryCountOfEveryMonth)
{
    // Lines 5 to 17 on the left, 6 to 17 on the right; the month in progress on line 4 is left out.
    const MonthlyTable table(active(), {{1, 13, 5, 1}, {14, 12, 6, 42}});
    const struct {
        Type type;
        Columns columns;
        TextSpan title;
    } types[] = {{Fuels, {5, 9}, u"Count of Active Customers - Fuels"},
                 {Lubes, {13, 9}, u"Count of Active Customers - Lubes/Other"},
                 {Cardlock, {21, 9}, u"Count of Active Customers - Cardlock"},
                 {All, {29, 8}, u"Count of Active Customers - All"}};
    Session session;
    session.start(active().text());
    for (const auto [period, months] : periodOptions) {
        session.choose(window, "opt12", period);
        for (const auto& type : types) {
            SCOPED_TRACE(testing::Message() << months << " months, data type " << type.type);
            const Chart shown = chart(session, type.type);
            EXPECT_EQ(shown.series, std::vector<Numbers>{slots(table.numbers(type.columns, months))});
            EXPECT_EQ(shown.labels, slots(table.labels(months)));
            EXPECT_EQ(shown.titles, (std::map<int, Text>{{2, Text(type.title)},
                                                         {3, u"BRAMBLEWICK FUEL CO - ALL BRANCHES"}}));
            EXPECT_FALSE(shown.decimals);
        }
    }
}

TEST(FrmActive, ACountIsExactlyItsColumns)
{
    Session session;
    session.start(active().put(6, 6, ruler).put(6, 47, ruler).text());
    session.choose(window, "opt12", 1);
    for (const int month : {2, 14}) {
        EXPECT_EQ(valueOf(chart(session, Fuels), 25, month), 314159265);
        EXPECT_EQ(valueOf(chart(session, Lubes), 25, month), 535897932);
        EXPECT_EQ(valueOf(chart(session, Cardlock), 25, month), 238462643);
        EXPECT_EQ(valueOf(chart(session, All), 25, month), 33832795);
    }
}

TEST(FrmActive, CommasAreDropped)
{
    Session session;
    session.start(active().put(5, 6, u"   1,204").put(6, 6, u"       -").put(7, 6, u"        ").text());
    const Chart shown = session.chart(window);
    EXPECT_EQ(valueOf(shown, 13, 1), 1204);
    EXPECT_EQ(valueOf(shown, 13, 2), 0);
    EXPECT_EQ(valueOf(shown, 13, 3), 0);
}

TEST(FrmActive, AllIsAColumnAndNoSum)
{
    Session session;
    session.start(active().put(5, 30, u"       7").text());
    EXPECT_EQ(valueOf(chart(session, All), 13, 1), 7);
}

TEST(FrmActive, SixMonthsLeaveOutTheTopRow)
{
    Session session;
    session.start(active().text());
    session.choose(window, "opt12", 2);
    const Chart shown = session.chart(window);
    EXPECT_EQ(shown.labels, (Texts{u"JUL99", u"AUG99", u"SEP99", u"OCT99", u"NOV99", u"DEC99", u""}));
    EXPECT_EQ(shown.series, (std::vector<Numbers>{{1089, 1115, 1287, 1502, 1733, 1865, 0}}));
}

TEST(FrmActive, TwoYearsGoOnInTheRightHalf)
{
    Session session;
    session.start(active().text());
    session.choose(window, "opt12", 1);
    const Chart shown = session.chart(window);
    EXPECT_EQ(valueOf(shown, 25, 13), 1809); // DEC98, line 17, left
    EXPECT_EQ(valueOf(shown, 25, 14), 1651); // NOV98, line 6, right
    EXPECT_EQ(valueOf(shown, 25, 25), 1780); // DEC97, line 17, right
    EXPECT_EQ(shown.labels.front(), u"D97");
    EXPECT_EQ(shown.labels[24], u"D99");
}

TEST(FrmActive, TheSecondTitleIsTheWholeOfLineTwo)
{
    Session session;
    session.start(active().replaceLine(2, u" COMPANY: 01: ALL ").replaceLine(3, u"A:B").text());
    EXPECT_EQ(session.chart(window).titles,
              (std::map<int, Text>{{2, u"Count of Active Customers - Fuels"}, {3, u" COMPANY: 01: ALL "}}));
}

TEST(FrmActive, OptionsStandInTheirOrder)
{
    Session session;
    session.start(active().text());
    EXPECT_EQ(session.events(), opening("frmActive"));
    expectButtons(session, window);
    expectMonthsFrame(session, window);
    const OptionGroup types = session.options(window, "optSales");
    EXPECT_EQ(fromTheTop(types), (Texts{u"All", u"Lubes/Other", u"Fuels", u"Cardlock"}));
    EXPECT_EQ(indicesFromTheTop(types), (std::vector{3, 1, 0, 2}));
    EXPECT_EQ(types.chosen, std::vector{0});
    EXPECT_EQ(frameCaptions(frmActive), (Texts{u"Months", u"Data Type"}));
    EXPECT_EQ(session.caption(window), u"Plotvue!");
}

TEST(FrmActive, NoMonthIsProjectedAndNoNameIsNeeded)
{
    Session session;
    session.start(active().put(5, 1, u"?????").text());
    EXPECT_FALSE(session.platform.over());
    EXPECT_EQ(session.chart(window).series.size(), 1u);
    EXPECT_EQ(session.chart(window).labels[12], u"?????");
}

TEST(FrmActive, WithoutItsIdentifierNothingIsRead)
{
    Session session;
    session.start(active().text());
    expectForeignCaptureLeaves(session, "frmActive", active().put(1, 1, u"QXMACTIV ").text());
}

TEST(FrmActive, ShortCapturesNeverReturn)
{
    expectShortCaptureSpins("frmActive", "active");
}

TEST(FrmActive, ExitKeepsTheChart)
{
    Session session;
    session.start(active().text());
    expectExitKeepsTheChart(session, "frmActive", active().put(6, 6, u"      99").text());
}

} // namespace

} // namespace plotvue::test
