#include "unit/history_fixture.h"
#include "unit/saleshistory.h"

namespace plotvue::test {

using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

namespace {

constexpr Columns volume{6, 9}, sales{16, 9}, profit{26, 9};
constexpr int monthsOfPeriod[] = {13, 25, 6};

std::vector<double> valuesOf(const SalesHistory& history, const MonthlyTable& table, int type, int months)
{
    std::vector<double> values;
    for (int month = 1; month <= months; ++month) {
        const double v = table.number(month, volume);
        const double s = table.number(month, sales);
        const double p = table.number(month, profit);
        const double byType[] = {s, p, v, history.percent(p, s), history.percent(p, v)};
        values.push_back(byType[type]);
    }
    return values;
}

// A field's characters: nine, the text at the right.
Text field(TextSpan text)
{
    return Text(9 - text.size(), u' ').append(text);
}

} // namespace

void HistoryTester::start(TextSpan capture)
{
    first_ = capture;
    session.start(capture);
}

void HistoryTester::choose(int type, int period)
{
    session.choose(window, "optSales", type);
    session.choose(window, "opt12", period);
}

double HistoryTester::newest(int type, int series)
{
    choose(type, Months12);
    return chart().series.at(static_cast<std::size_t>(series)).at(12);
}

std::vector<std::string> HistoryTester::refresh(TextSpan capture)
{
    session.events();
    session.copy(capture);
    session.press(window, "cmdRefresh");
    return session.events();
}

void HistoryTester::expectRefusal(TextSpan capture)
{
    const Chart before = chart();
    EXPECT_THAT(refresh(capture), ElementsAre("hide " + std::string(window), "show startup"));
    EXPECT_EQ(chart().titles, before.titles);
    EXPECT_EQ(chart().series, before.series);
    EXPECT_EQ(chart().labels, before.labels);

    session.copy(first_);
    session.press("startup", "Command1");
    EXPECT_TRUE(session.visible(window));
}

Text blotted(Text capture, TextSpan word)
{
    for (std::size_t at; (at = capture.find(word)) != Text::npos;)
        capture.replace(at, word.size(), word.size(), u'.');
    return capture;
}

Text withWordAt(Text capture, TextSpan word, std::size_t position)
{
    capture.resize(position - 1, u'.');
    return capture.append(word).append(u"\r\n");
}

HostScreen SalesHistoryTest::newestMonth(TextSpan volume, TextSpan sales, TextSpan profit) const
{
    const int line = GetParam().newestLine;
    return sampleScreen()
        .put(line, 7, field(volume))
        .put(line, 17, field(sales))
        .put(line, 27, field(profit));
}

TEST_P(SalesHistoryTest, ChartsEveryMonthForEveryPeriodAndDataType)
{
    const SalesHistory& history = GetParam();
    const MonthlyTable table(sampleScreen(),
                             {{1, 13, history.newestLine, 1}, {14, 12, history.newestLine + 1, 42}});
    const TextSpan captions[] = {u"Sales", u"Profit", u"Volume", u"Profit%", u"Unit G/P"};
    const int decimals[] = {0, 0, 0, 2, 2};
    const double elapsed = 1 - (history.days - history.day) / history.days;

    tester.start(sample(history.sample));
    for (const int type : {Sales, Profit, Volume, Percent, PerUnit}) {
        for (const int period : {Months12, Months24, Months6}) {
            SCOPED_TRACE("type " + std::to_string(type) + ", period " + std::to_string(period));
            const int months = monthsOfPeriod[period];
            const std::vector<double> values = valuesOf(history, table, type, months);
            std::vector<double> projection(static_cast<std::size_t>(months), 0.0);
            if (type == Sales || type == Profit || type == Volume)
                projection[0] = values[0] / elapsed - values[0];

            tester.choose(type, period);
            const Chart chart = tester.chart();
            EXPECT_EQ(chart.titles.at(1), captions[type]);
            EXPECT_EQ(chart.decimals, decimals[type]);
            EXPECT_EQ(chart.labels, slots(table.labels(months)));
            EXPECT_THAT(chart.series, ElementsAre(slots(values), slots(projection)));
            EXPECT_TRUE(chart.hidden.empty());
        }
    }
}

TEST_P(SalesHistoryTest, CutsEveryFieldAtItsColumns)
{
    const int line = GetParam().newestLine;
    const TextSpan row = u"JUL88" // the blanks between the fields filled up
                         u"9123456789"
                         u"8987654321"
                         u"7192837465"
                         u"6";
    tester.start(sampleScreen().put(line, 1, row).put(line + 12, 42, row).text());
    const double figures[] = {987654321, 192837465, 123456789};
    for (const int type : {Sales, Profit, Volume}) {
        tester.choose(type, Months24);
        const std::vector<double> values = tester.chart().series[0];
        EXPECT_EQ(values[24], figures[type]) << type;
        EXPECT_EQ(values[0], figures[type]) << type;
    }
    EXPECT_EQ(tester.chart().labels[24], u"J88");
    EXPECT_EQ(tester.chart().labels[0], u"J88");
    tester.choose(Sales, Months12);
    EXPECT_EQ(tester.chart().labels[12], u"JUL88");
}

TEST_P(SalesHistoryTest, OpensWithSalesOfTwelveMonths)
{
    tester.start(sample(GetParam().sample));
    EXPECT_TRUE(tester.session.visible(tester.window));
    EXPECT_FALSE(tester.session.visible("startup"));
    EXPECT_EQ(tester.chart().titles.at(1), u"Sales");
    EXPECT_EQ(tester.chart().labels.size(), 14u);
    EXPECT_THAT(tester.session.options(tester.window, "opt12").chosen, ElementsAre(0));
    EXPECT_THAT(tester.session.options(tester.window, "optSales").chosen, ElementsAre(0));
}

TEST_P(SalesHistoryTest, CaptionsItsControls)
{
    const SalesHistory& history = GetParam();
    Session& session = tester.session;
    session.start(sample(history.sample));
    EXPECT_EQ(session.caption(tester.window), u"Plotvue!");
    expectButtons(session, tester.window);
    EXPECT_THAT(frameCaptions(history.screen), ElementsAre(history.periodFrame, history.typeFrame));
}

TEST_P(SalesHistoryTest, StandsItsOptionsInOrder)
{
    const auto fromTheTop = [&](Name group) {
        std::vector<std::pair<int, Text>> found;
        for (const OptionGroup::Entry& option : tester.session.options(tester.window, group).options)
            found.emplace_back(option.index, option.caption);
        return found;
    };
    const SalesHistory& history = GetParam();
    tester.start(sample(history.sample));
    EXPECT_THAT(fromTheTop("opt12"),
                ElementsAre(std::pair(1, history.periods[1]), std::pair(0, history.periods[0]),
                            std::pair(2, history.periods[2])));
    std::vector<std::pair<int, Text>> types;
    for (const int index : history.typeOrder)
        types.emplace_back(index, history.types.at(static_cast<std::size_t>(index)));
    EXPECT_EQ(types.size(), 5u);
    EXPECT_EQ(fromTheTop("optSales"), types);
}

TEST_P(SalesHistoryTest, ReadsFieldsWithoutANumberAsZero)
{
    tester.start(newestMonth(u"", u"PENDING", u"").text());
    EXPECT_EQ(tester.newest(Sales), 0);
    EXPECT_EQ(tester.newest(Profit), 0);
    EXPECT_EQ(tester.newest(Volume), 0);
    EXPECT_EQ(tester.newest(Volume, 1), 0);
}

TEST_P(SalesHistoryTest, KeepsNeitherCommasNorTrailingMinus)
{
    tester.start(newestMonth(u"1234-", u"1,234", u"-56.5").text());
    EXPECT_EQ(tester.newest(Sales), 1);
    EXPECT_EQ(tester.newest(Volume), 1234);
    EXPECT_EQ(tester.newest(Profit), -56.5);
}

TEST_P(SalesHistoryTest, DividesNeitherBySalesNorByVolumeOfZero)
{
    tester.start(newestMonth(u"20", u"0", u"50").text());
    EXPECT_EQ(tester.newest(Percent), 0);
    EXPECT_EQ(tester.newest(PerUnit), 250);
    tester.refresh(newestMonth(u"0", u"200", u"50").text());
    EXPECT_EQ(tester.newest(PerUnit), 0);
    EXPECT_EQ(tester.newest(Percent), 25);
}

TEST_P(SalesHistoryTest, DoublesTheNewestMonthHalfWayThroughIt)
{
    const SalesHistory& history = GetParam();
    HostScreen screen = newestMonth(u"8000", u"500", u"90");
    screen.put(history.newestLine, 1, u"JUN96").put(history.dayLine, history.dayColumn, u"15");
    tester.start(screen.text());
    EXPECT_EQ(tester.newest(Sales), 500);
    EXPECT_EQ(tester.newest(Sales, 1), 500);
    EXPECT_EQ(tester.newest(Profit, 1), 90);
    EXPECT_EQ(tester.newest(Volume, 1), 8000);
    EXPECT_EQ(tester.newest(Percent, 1), 0);
    EXPECT_EQ(tester.newest(PerUnit, 1), 0);

    // February counts 28 days in leap years too.
    screen.put(history.newestLine, 1, u"FEB96").put(history.dayLine, history.dayColumn, u"14");
    tester.refresh(screen.text());
    EXPECT_EQ(tester.newest(Sales, 1), 500);
}

TEST_P(SalesHistoryTest, ProjectsNothingWithoutADay)
{
    const SalesHistory& history = GetParam();
    tester.start(sample(history.sample));
    for (const TextSpan day : {u"  ", u"XX", u"00"}) {
        tester.refresh(sampleScreen().put(history.dayLine, history.dayColumn, day).text());
        EXPECT_GT(tester.newest(Sales), 0);
        EXPECT_EQ(tester.newest(Sales, 1), 0);
    }
}

TEST_P(SalesHistoryTest, EndsTheProcessWhenTheNewestMonthHasNoName)
{
    for (const TextSpan name : {u"OKT", u"oct", u"---"}) {
        Session session;
        session.start(sampleScreen().put(GetParam().newestLine, 1, name).text());
        EXPECT_THAT(session.events(), Contains(StartsWith("error ")));
        EXPECT_TRUE(session.platform.over());
    }
}

TEST_P(SalesHistoryTest, NeverReturnsFromACaptureOfNineteenLinesOrFewer)
{
    const Text whole = sample(GetParam().sample);
    for (const int lines : {12, 18, 19}) {
        std::size_t end = 0;
        for (int line = 0; line < lines; ++line)
            end = whole.find(u"\r\n", end) + 2;
        HistoryTester cut(GetParam().screen.window);
        cut.start(whole);
        EXPECT_THAT(cut.refresh(whole.substr(0, end)), ElementsAre("spin")) << lines;
    }
}

TEST_P(SalesHistoryTest, IsLeftWithExit)
{
    tester.start(sample(GetParam().sample));
    tester.session.events();
    tester.session.press(tester.window, "cmdExit");
    EXPECT_THAT(tester.session.events(), ElementsAre("hide " + std::string(tester.window), "show startup"));
}

} // namespace plotvue::test
