// What the windows of all monthly screens do: each test runs for every monthly screen.
#include "capture/utf8.h"
#include "unit/monthlyscreens.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class Monthly : public testing::TestWithParam<ExpectedScreen>, public ChartWindow {
protected:
    Monthly() : ChartWindow(GetParam().window, GetParam().sample) {}

    const ExpectedScreen& expected = GetParam();
    const Text changed = expected.changed();

    // Every button and option that charts the capture: the control and the index of the option.
    std::vector<std::pair<Name, int>> clicks() const
    {
        std::vector<std::pair<Name, int>> all{
            {"cmdRefresh", noOption}, {"opt12", 1}, {"opt12", 2}, {"opt12", 0}};
        if (!expected.types.empty())
            all.insert(all.end(), {{"optSales", 1}, {"optSales", 0}, {"optSales", 0}});
        return all;
    }

    // Compares the whole chart, for every data type and period, with what MonthlyTable reads from the screen.
    void expectEveryMonth(const MonthlyTable& table);

    // The capture without this word: the word is in lower case, lacks its first or lacks its last letter.
    std::vector<Text> capturesWithout(TextSpan word, Text capture) const;
};

void Monthly::expectEveryMonth(const MonthlyTable& table)
{
    EXPECT_EQ(refresh(table.screen()), Events{});
    const double elapsed = 1 - (expected.days - expected.day) / expected.days;
    for (std::size_t type = 0; type < expected.types.size(); ++type)
        for (const int period : {Year, TwoYears, HalfYear}) {
            SCOPED_TRACE("type " + std::to_string(type) + ", period " + std::to_string(period));
            const ExpectedType& shown = expected.types[type];
            const int months = monthsOf[period];
            Numbers values, second(static_cast<std::size_t>(months));
            for (int month = 1; month <= months; ++month) {
                values.push_back(shown.figure(table, month));
                if (shown.second)
                    second.at(values.size() - 1) = shown.second(table, month);
            }
            if (expected.projects() && type <= Volume)
                second[0] = values[0] / elapsed - values[0];

            const auto chart = this->chart(static_cast<int>(type), period);
            ASSERT_EQ(chart.series.size(), expected.series);
            EXPECT_EQ(chart.series[0], slots(values));
            if (expected.series == 2) {
                EXPECT_EQ(chart.series[1], slots(second));
            }
            EXPECT_EQ(chart.labels, slots(table.labels(months)));
            EXPECT_EQ(chart.fullLabels, slots(table.fullLabels(months)));
            EXPECT_EQ(chart.hidden, expected.series == 2 && !expected.projects() && !shown.second
                                        ? std::set{1}
                                        : std::set<int>{});
            EXPECT_EQ(chart.decimals, shown.decimals);
            std::map<int, Text> titles = expected.titles;
            titles[shown.title.first] = shown.title.second;
            EXPECT_EQ(chart.titles, titles);
        }
}

std::vector<Text> Monthly::capturesWithout(TextSpan word, Text capture) const
{
    Text lower(word), headless(word), tailless(word);
    for (char16_t& letter : lower)
        letter = letter >= u'A' && letter <= u'Z' ? static_cast<char16_t>(letter + 32) : letter;
    headless.front() = tailless.back() = u'.';
    std::vector<Text> captures;
    for (const Text& other : {lower, headless, tailless}) {
        Text& without = captures.emplace_back(capture);
        for (std::size_t at; (at = without.find(word)) != Text::npos;)
            without.replace(at, word.size(), other);
    }
    return captures;
}

TEST_P(Monthly, ItsSampleIs24LinesOfAtMost80Columns)
{
    const Text text = sample(expected.sample);
    EXPECT_EQ(text, screen.text());
    EXPECT_EQ(std::count(text.begin(), text.end(), u'\n'), 24);
    for (std::size_t line = 1; line <= 24; ++line) {
        EXPECT_GT(screen.line(line).size(), 0u);
        EXPECT_LE(screen.line(line).size(), 80u);
    }
}

TEST_P(Monthly, OpensWithTheFirstOptionsOfItsFrames)
{
    EXPECT_EQ(open(), opening(window));
    EXPECT_TRUE(session.visible(window));
    EXPECT_FALSE(session.visible("startup"));
    EXPECT_EQ(session.platform.clipboardReads, 1); // the start-up window and the chart share what was read
    EXPECT_EQ(session.caption(window), expected.caption);
    EXPECT_EQ(session.options(window, "opt12").chosen, std::vector{0});
    std::map<int, Text> titles = expected.titles;
    if (!expected.types.empty()) {
        EXPECT_EQ(session.options(window, "optSales").chosen, std::vector{0});
        EXPECT_EQ(chart().labels.size(), 14u);
        titles[expected.types[0].title.first] = expected.types[0].title.second;
    }
    EXPECT_EQ(chart().titles, titles);
}

TEST_P(Monthly, HasItsButtonsAndItsOptionsInOrder)
{
    open();
    Texts controls{u"ChartFX1", u"cmdExit", u"cmdPrint", u"cmdRefresh", u"opt12"};
    Options types;
    for (const int index : expected.typeOrder)
        types.emplace_back(index, expected.types.at(static_cast<std::size_t>(index)).option);
    EXPECT_EQ(types.size(), expected.types.size());
    if (!types.empty()) {
        controls.push_back(u"optSales");
        EXPECT_EQ(options("optSales"), types);
    }
    EXPECT_EQ(options("opt12"), expected.periods);
    EXPECT_EQ(session.controlNames(window), controls);
    EXPECT_EQ(session.frames(window), expected.frames);
    expectButtons();
}

TEST_P(Monthly, ShowsTheFiguresOfItsSample)
{
    open();
    for (const auto& [type, month, label, value] : expected.figures)
        for (const int period : {Year, TwoYears, HalfYear}) {
            if (month > monthsOf[period])
                continue;
            SCOPED_TRACE(toUtf8(label) + ", period " + std::to_string(period));
            const auto chart = this->chart(type, period);
            EXPECT_NEAR(valueOf(chart, month), value, 1e-6);
            EXPECT_EQ(chart.labels.at(static_cast<std::size_t>(monthsOf[period] - month)),
                      period == TwoYears ? Text(label.substr(0, 1)) + Text(label.substr(3)) : Text(label));
            if (expected.projects() && month == 1 && type <= Volume) {
                EXPECT_NEAR(valueOf(chart, 1, 1), value * (expected.days - expected.day) / expected.day,
                            1e-6);
            }
        }
}

TEST_P(Monthly, ShowsEveryMonthOfItsSample)
{
    open();
    expectEveryMonth(expected.table(screen));
}

// Every row is filled with digits, different ones in each row, so a wrong column gives another figure.
TEST_P(Monthly, CutsEveryFigureAtItsColumns)
{
    open();
    if (expected.types.empty())
        return; // tested in frmglarch_test.cpp
    MonthlyTable table = expected.table(screen);
    for (int month = 1; month <= 25; ++month) {
        Text digits;
        for (int i = 0; i < 35; ++i)
            digits.push_back(static_cast<char16_t>(u'1' + (i * i + month * (i + 3)) % 9));
        table.put(month, 5, digits);
    }
    expectEveryMonth(table);
}

TEST_P(Monthly, EveryClickReadsTheClipboardAgain)
{
    open();
    bool isChanged = false;
    for (const auto& [control, option] : clicks()) {
        const auto before = chart();
        isChanged = !isChanged;
        session.copy(isChanged ? changed : screen.text());
        EXPECT_EQ(chart().series, before.series);
        EXPECT_EQ(click(isChanged ? changed : screen.text(), control, option), Events{});
        EXPECT_NE(chart().series, before.series) << control << option;
    }
}

TEST_P(Monthly, ExitKeepsTheChartAndWhatIsChosen)
{
    open();
    choose(static_cast<int>(expected.types.size()) - 1, HalfYear);
    EXPECT_EQ(session.options(window, "opt12").chosen, std::vector<int>{HalfYear});
    expectExitKeepsTheChart(changed);
}

TEST_P(Monthly, PrintsACopyAJob)
{
    open();
    expectPrints();
}

TEST_P(Monthly, WithoutAWordOfItsScreenItIsLeft)
{
    using Missing = ExpectedWord::Missing;
    for (const ExpectedWord& word : expected.words) {
        SCOPED_TRACE(toUtf8(word.word));
        for (const Text& capture : capturesWithout(word.word, changed))
            for (const auto& [control, option] : clicks()) {
                ChartWindow left(window, screen);
                left.open();
                if (word.missing == Missing::Leaves) {
                    left.expectRefusal(capture, control, option);
                    continue;
                }
                const auto before = left.chart();
                const bool ends = word.missing == Missing::Ends;
                EXPECT_EQ(left.click(capture, control, option), ends ? Events{"end"} : left.left());
                EXPECT_EQ(left.session.visible(window), ends);
                EXPECT_EQ(left.session.platform.over(), ends);
                if (ends) {
                    EXPECT_TRUE(left.chart() == before);
                    continue;
                }
                ChartWindow whole(window, screen);
                whole.open();
                whole.click(changed, control, option);
                EXPECT_EQ(left.chart().titles, whole.chart().titles);
                EXPECT_EQ(left.chart().series[0], whole.chart().series[0]);
            }
    }
}

TEST_P(Monthly, OpenedWithoutAWordItIsLeftAtOnce)
{
    const Events leftAtOnce{"load startup", "show startup", "hide startup", "load " + name, "show startup"};
    for (std::size_t i = 0; i + 1 < expected.words.size(); ++i) {
        ChartWindow left(window, screen);
        EXPECT_EQ(left.open(blotted(screen.text(), expected.words[i].word)), leftAtOnce);
        EXPECT_FALSE(left.session.visible(window));
        EXPECT_TRUE(left.session.visible("startup"));
        const bool charts = expected.words[i].missing == ExpectedWord::Missing::LeavesAndCharts;
        EXPECT_NE(left.chart().series.empty(), charts);
        EXPECT_NE(left.chart().titles.empty(), charts);
    }
}

TEST_P(Monthly, AnEmptyClipboardIsAForeignCapture)
{
    open();
    Events events = left();
    events.insert(events.end(), expected.endOfEmptyCapture.begin(), expected.endOfEmptyCapture.end());
    EXPECT_EQ(refresh(u""), events);
}

TEST_P(Monthly, ACaptureOfNineteenLinesOrFewerIsReadWithoutEnd)
{
    const Text whole = screen.text();
    std::size_t end = 0;
    for (int line = 1; line <= 19; ++line) {
        end = whole.find(u"\r\n", end) + 2;
        if (line != 12 && line != 18 && line != 19)
            continue;
        ChartWindow cut(window, screen);
        cut.open();
        EXPECT_EQ(cut.refresh(whole.substr(0, end)), Events{"spin"}) << line;
        EXPECT_TRUE(cut.session.platform.over());
    }
    Events spinning = opening(window);
    spinning.back() = "spin";
    EXPECT_EQ(ChartWindow(window, screen).open(whole.substr(0, end)), spinning);
    EXPECT_EQ(open(whole.substr(0, end) + u" "), opening(window));
}

TEST_P(Monthly, TheNewestMonthNeedsANameWhereItIsProjected)
{
    const int types = static_cast<int>(expected.types.size());
    for (int type = 0; type < types; ++type)
        for (const TextSpan label : {u"OKT99", u"oct99", u"Nov99", u"---", u"?????", u"     "}) {
            ChartWindow named(window, screen);
            named.open();
            named.choose(type, Year);
            MonthlyTable table = expected.table(screen);
            table.put(1, 0, label);
            if (expected.projects()) {
                EXPECT_THAT(named.refresh(table.screen()), ElementsAre(StartsWith("error ")));
            } else {
                EXPECT_EQ(named.refresh(table.screen()), Events{});
                EXPECT_EQ(named.chart().labels.at(12), table.characters(1, {0, 5}));
            }
            EXPECT_EQ(named.session.platform.over(), expected.projects());
        }
}

INSTANTIATE_TEST_SUITE_P(Screens, Monthly, testing::ValuesIn(monthlyScreens()),
                         [](const auto& tested) { return std::string(tested.param.window); });

} // namespace
} // namespace plotvue::test
