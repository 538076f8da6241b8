#include "unit/history_fixture.h"

namespace plotvue::test {

namespace {

constexpr Name window = "frmLateCharge";

enum Type { Total, Open, Paid, PaidPercent, PaidLost };

HostScreen charges()
{
    return hostScreen("latecharge");
}

Chart chart(Session& session, Type type)
{
    session.choose(window, "optSales", type);
    return session.chart(window);
}

TEST(FrmLateCharge, ShowsEveryFigureOfEveryMonth)
{
    const MonthlyTable table(charges(), {{1, 13, 4, 1}, {14, 12, 5, 42}});
    Session session;
    session.start(charges().text());
    for (const auto [period, months] : periodOptions) {
        session.choose(window, "opt12", period);
        const Numbers total = table.numbers({6, 9}, months);
        const Numbers open = table.numbers({16, 9}, months);
        const Numbers paid = table.numbers({25, 9}, months);
        const Numbers none(total.size());
        Numbers percent, lost;
        for (std::size_t i = 0; i < total.size(); ++i) {
            percent.push_back(paid[i] / total[i] * 100);
            lost.push_back(total[i] - open[i] - paid[i]);
        }
        const struct {
            Type type;
            TextSpan caption;
            int decimals;
            const Numbers &first, &second;
            std::set<int> hidden;
        } types[] = {{Total, u"Total Charges", 0, total, none, {1}},
                     {Open, u"Open", 0, open, none, {1}},
                     {Paid, u"Paid", 0, paid, none, {1}},
                     {PaidPercent, u"% Collected", 1, percent, none, {1}},
                     {PaidLost, u"Paid/Lost", 0, paid, lost, {}}};
        for (const auto& type : types) {
            SCOPED_TRACE(testing::Message() << months << " months, data type " << type.type);
            const Chart shown = chart(session, type.type);
            EXPECT_EQ(shown.series, (std::vector<Numbers>{slots(type.first), slots(type.second)}));
            EXPECT_EQ(shown.labels, slots(table.labels(months)));
            EXPECT_EQ(shown.hidden, type.hidden);
            EXPECT_EQ(shown.titles.at(1), type.caption);
            EXPECT_EQ(shown.decimals, type.decimals);
        }
    }
}

TEST(FrmLateCharge, AnAmountIsExactlyItsNineColumns)
{
    Session session;
    session.start(charges().put(5, 6, ruler).put(5, 47, ruler).text());
    session.choose(window, "opt12", 1);
    for (const int month : {2, 14}) {
        EXPECT_EQ(valueOf(chart(session, Total), 25, month), 141592653);
        EXPECT_EQ(valueOf(chart(session, Open), 25, month), 897932384);
        EXPECT_EQ(valueOf(chart(session, Paid), 25, month), 626433832);
        EXPECT_EQ(valueOf(chart(session, PaidLost), 25, month, 1), 141592653.0 - 897932384.0 - 626433832.0);
    }
}

TEST(FrmLateCharge, PaidAndLostAreWhatIsNoLongerOpen)
{
    HostScreen host = charges();
    host.put(5, 7, u"   500.00").put(5, 17, u"   120.00").put(5, 26, u"   300.00");
    host.put(6, 7, u" 1,000.00").put(6, 17, u"   900.00").put(6, 26, u"   250.00");
    Session session;
    session.start(host.text());
    EXPECT_EQ(valueOf(chart(session, PaidPercent), 13, 2), 60);
    const Chart lost = chart(session, PaidLost);
    EXPECT_EQ(valueOf(lost, 13, 2, 0), 300);
    EXPECT_EQ(valueOf(lost, 13, 2, 1), 80);
    EXPECT_EQ(valueOf(lost, 13, 3, 1), -150);
}

TEST(FrmLateCharge, NothingIsDividedByATotalOfNought)
{
    Session session;
    session.start(charges().put(5, 7, u"         ").put(6, 7, u"     0.00").put(7, 7, u"     NONE").text());
    const Chart percent = chart(session, PaidPercent);
    for (const int month : {2, 3, 4})
        EXPECT_EQ(valueOf(percent, 13, month), 0);
    EXPECT_FALSE(session.platform.over());
}

TEST(FrmLateCharge, TheSecondSeriesIsHiddenAgain)
{
    Session session;
    session.start(charges().text());
    EXPECT_EQ(session.chart(window).hidden, std::set{1});
    EXPECT_TRUE(chart(session, PaidLost).hidden.empty());
    for (const Type type : {Total, Open, Paid, PaidPercent}) {
        chart(session, PaidLost);
        const Chart shown = chart(session, type);
        EXPECT_EQ(shown.hidden, std::set{1});
        EXPECT_EQ(shown.series[1], Numbers(14));
    }
}

TEST(FrmLateCharge, EveryAmountOfARowIsRead)
{
    // A number too large for the machine fails the reading, though paid amounts are not charted.
    Session session;
    session.start(charges().put(5, 26, u"    9E999").text());
    EXPECT_TRUE(session.events().back().starts_with("error "));
}

TEST(FrmLateCharge, TheRightHalfBeginsOnLineFive)
{
    Session session;
    session.start(charges().put(4, 42, u"XXX99 99,999.99").text());
    session.choose(window, "opt12", 1);
    const Chart total = session.chart(window);
    EXPECT_EQ(valueOf(total, 25, 1), 5727.96);
    EXPECT_EQ(valueOf(total, 25, 13), 6828.98); // line 16, left
    EXPECT_EQ(valueOf(total, 25, 14), 6489.12); // line 5, right
    EXPECT_EQ(valueOf(total, 25, 25), 7160.87); // line 16, right
    for (const Text& label : total.labels)
        EXPECT_NE(label, u"X99");
}

TEST(FrmLateCharge, SixMonthsAreTheSixNewestLines)
{
    Session session;
    session.start(charges().text());
    session.choose(window, "opt12", 2);
    const Chart total = session.chart(window);
    EXPECT_EQ(total.labels, (Texts{u"APR99", u"MAY99", u"JUN99", u"JUL99", u"AUG99", u"SEP99", u""}));
    EXPECT_EQ(total.series[0], (Numbers{7822.25, 6599.14, 6409.38, 5723.27, 5914.47, 5727.96, 0}));
}

TEST(FrmLateCharge, TheTitleIsFixed)
{
    Session session;
    session.start(charges().text());
    EXPECT_EQ(session.chart(window).titles,
              (std::map<int, Text>{{1, u"Total Charges"}, {2, u"Late Charge History"}}));
    EXPECT_EQ(session.caption(window), u"Late Charge Analysis");
}

TEST(FrmLateCharge, OptionsStandInTheirOrder)
{
    Session session;
    session.start(charges().text());
    EXPECT_EQ(session.events(), opening("frmLateCharge"));
    expectButtons(session, window);
    expectMonthsFrame(session, window);
    const OptionGroup types = session.options(window, "optSales");
    EXPECT_EQ(fromTheTop(types), (Texts{u"Paid/Lost", u"Paid %", u"Total", u"Paid", u"Open"}));
    EXPECT_EQ(indicesFromTheTop(types), (std::vector{4, 3, 0, 2, 1}));
    EXPECT_EQ(types.chosen, std::vector{0});
    EXPECT_EQ(frameCaptions(frmLateCharge), (Texts{u"Months", u"Data Type"}));
}

TEST(FrmLateCharge, PaidAndLostAreTheSeriesNames)
{
    forEachControl(declareHistoryWindow(frmLateCharge).content, [](const auto& control) {
        if constexpr (std::is_same_v<std::decay_t<decltype(control)>, ChartBox>) {
            EXPECT_EQ(control.chart.design.legends, (std::map<int, TextSpan>{{0, u"Paid"}, {1, u"Lost"}}));
        }
    });
}

TEST(FrmLateCharge, NoMonthNeedsAName)
{
    Session session;
    session.start(charges().put(4, 1, u"?????").text());
    EXPECT_FALSE(session.platform.over());
    EXPECT_EQ(session.chart(window).labels[12], u"?????");
}

TEST(FrmLateCharge, WithoutItsIdentifierNothingIsRead)
{
    Session session;
    session.start(charges().text());
    expectForeignCaptureLeaves(session, "frmLateCharge", charges().put(1, 1, u"qxmlchist").text());
}

TEST(FrmLateCharge, ShortCapturesNeverReturn)
{
    expectShortCaptureSpins("frmLateCharge", "latecharge");
}

TEST(FrmLateCharge, ExitKeepsTheChart)
{
    Session session;
    session.start(charges().text());
    expectExitKeepsTheChart(session, "frmLateCharge", charges().put(5, 7, u"     9.00").text());
}

} // namespace

} // namespace plotvue::test
