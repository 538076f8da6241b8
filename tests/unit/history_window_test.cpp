// What all history windows have in common, seen on the product window.
#include "app/screens.h"
#include "history/window.h"
#include "support/capturebuilder.h"
#include "support/session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plotvue {
namespace {

using test::CaptureBuilder;
using test::Session;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

// A product screen with these sales in the newest month and nothing else.
Text withSales(TextSpan sales, TextSpan product = u"0020450001")
{
    return CaptureBuilder()
        .put(1, 1, u"QXM31H")
        .put(2, 1, u"PRODUCT:")
        .put(2, 9, product)
        .put(5, 1, u"-----")
        .put(6, 1, u"NOV99")
        .put(6, 17, sales)
        .text();
}

class HistoryWindowTest : public testing::Test {
protected:
    HistoryWindowTest()
    {
        session.start(withSales(u"1000"));
        session.events();
    }

    std::vector<double> values() { return session.chart("frmProduct").series.at(0); }
    double newest() { return *(values().rbegin() + 1); }
    Text title(int position) { return session.chart("frmProduct").titles.at(position); }

    Session session;
};

TEST_F(HistoryWindowTest, HasOneChartTwoGroupsAndThreeButtons)
{
    EXPECT_THAT(session.controlNames("frmProduct"),
                ElementsAre("ChartFX1", "cmdExit", "cmdPrint", "cmdRefresh", "opt12", "optSales"));
    EXPECT_EQ(session.caption("frmProduct"), u"Plotvue!");
    EXPECT_EQ(session.text("frmProduct", "cmdPrint"), u"&Print");
    EXPECT_EQ(session.text("frmProduct", "cmdRefresh"), u"&Refresh");
    EXPECT_EQ(session.text("frmProduct", "cmdExit"), u"E&xit");
}

std::vector<std::pair<int, Text>> captions(const OptionGroup& state)
{
    std::vector<std::pair<int, Text>> result;
    for (const OptionGroup::Entry& option : state.options) {
        EXPECT_TRUE(option.visible);
        result.emplace_back(option.index, option.caption);
    }
    return result;
}

TEST_F(HistoryWindowTest, PeriodsStandFrom24MonthsDown)
{
    const OptionGroup periods = session.options("frmProduct", "opt12");
    EXPECT_THAT(captions(periods),
                ElementsAre(std::pair(1, Text(u"24 Month")), std::pair(0, Text(u"12 Month")),
                            std::pair(2, Text(u"6 Month"))));
    EXPECT_THAT(periods.chosen, ElementsAre(0));
}

TEST_F(HistoryWindowTest, DataTypesStandInTheOrderOfTheirIndex)
{
    const OptionGroup types = session.options("frmProduct", "optSales");
    EXPECT_THAT(captions(types), ElementsAre(std::pair(0, Text(u"Sales")), std::pair(1, Text(u"Profit")),
                                             std::pair(2, Text(u"Volume")), std::pair(3, Text(u"GP %")),
                                             std::pair(4, Text(u"G/P Units"))));
    EXPECT_THAT(types.chosen, ElementsAre(0));
}

TEST_F(HistoryWindowTest, ItsFramesAreTitled)
{
    std::map<Name, std::pair<Name, TextSpan>> frames;
    forEachControl(declareHistoryWindow(frmProduct).content, [&](const auto& control) {
        if constexpr (std::is_same_v<std::decay_t<decltype(control)>, OptionFrame>)
            frames[control.name] = {control.group, control.caption};
    });
    EXPECT_EQ(frames.size(), 2u);
    EXPECT_EQ(frames["Frame2"], std::pair(Name("opt12"), TextSpan(u"Months")));
    EXPECT_EQ(frames["Frame1"], std::pair(Name("optSales"), TextSpan(u"Data Type")));
}

TEST_F(HistoryWindowTest, PeriodsShow13And25And6MonthsAndAnEmptyPoint)
{
    EXPECT_EQ(values().size(), 14u);
    session.choose("frmProduct", "opt12", 1);
    EXPECT_EQ(values().size(), 26u);
    session.choose("frmProduct", "opt12", 2);
    EXPECT_EQ(values().size(), 7u);
    session.choose("frmProduct", "opt12", 0);
    EXPECT_EQ(values().size(), 14u);
    EXPECT_EQ(newest(), 1000);
    EXPECT_EQ(values().back(), 0);
    EXPECT_EQ(session.chart("frmProduct").labels.size(), 14u);
    EXPECT_EQ(session.chart("frmProduct").series.size(), 2u);
    EXPECT_EQ(session.chart("frmProduct").series[1].size(), 14u);
    EXPECT_TRUE(session.chart("frmProduct").hidden.empty());
}

TEST_F(HistoryWindowTest, RefreshAndEveryOptionClickReadTheClipboardAgain)
{
    session.copy(withSales(u"2000"));
    EXPECT_EQ(newest(), 1000);
    session.press("frmProduct", "cmdRefresh");
    EXPECT_EQ(newest(), 2000);
    int sales = 2000;
    for (const int index : {1, 0, 2, 2}) {
        session.copy(withSales(index == 1 ? u"2001" : index == 0 ? u"2002" : u"2003"));
        session.choose("frmProduct", "opt12", index);
        sales = 2000 + (index == 1 ? 1 : index == 0 ? 2 : 3);
        EXPECT_EQ(newest(), sales);
    }
    session.copy(withSales(u"3000"));
    session.choose("frmProduct", "optSales", 0); // already chosen
    EXPECT_EQ(newest(), 3000);
    session.choose("frmProduct", "optSales", 1);
    EXPECT_EQ(newest(), 0);
    EXPECT_THAT(session.events(), IsEmpty());
}

TEST_F(HistoryWindowTest, AnotherScreenOfTheSameKindIsCharted)
{
    session.copy(withSales(u"7", u"OTHERITEM "));
    session.choose("frmProduct", "opt12", 2);
    EXPECT_EQ(newest(), 7);
    EXPECT_EQ(title(2), u"Product: OTHERITEM  ");
}

TEST_F(HistoryWindowTest, AScreenOfAnotherKindSendsTheUserToTheStartWindow)
{
    const std::function<void()> clicks[] = {
        [this] { session.press("frmProduct", "cmdRefresh"); },
        [this] { session.choose("frmProduct", "opt12", 1); },
        [this] { session.choose("frmProduct", "optSales", 4); },
    };
    for (const auto& click : clicks) {
        for (const TextSpan other : {u"QXM21D 10", u"", u"qxm31h"}) {
            session.copy(other);
            click();
            EXPECT_THAT(session.events(), ElementsAre("hide frmProduct", "show startup"));
            EXPECT_EQ(values().size(), 14u);
            EXPECT_EQ(newest(), 1000);
            EXPECT_EQ(title(1), u"Sales");
            EXPECT_EQ(session.chart("frmProduct").decimals, 0);

            session.copy(withSales(u"5"));
            session.press("startup", "Command1");
            EXPECT_THAT(session.events(), ElementsAre("hide startup", "show frmProduct"));
            EXPECT_EQ(newest(), 1000);
        }
    }
}

TEST_F(HistoryWindowTest, ExitHidesItAndShowsTheStartWindow)
{
    session.press("frmProduct", "cmdExit");
    EXPECT_THAT(session.events(), ElementsAre("hide frmProduct", "show startup"));
    EXPECT_TRUE(session.loaded("frmProduct"));
    EXPECT_EQ(newest(), 1000);
}

TEST_F(HistoryWindowTest, ItsTitleBarIsItsExit)
{
    session.close("frmProduct");
    EXPECT_THAT(session.events(), ElementsAre("hide frmProduct", "show startup"));
    EXPECT_TRUE(session.loaded("frmProduct"));
}

TEST_F(HistoryWindowTest, ShownAgainItHasItsChoicesAndItsOldChart)
{
    session.choose("frmProduct", "opt12", 2);
    session.choose("frmProduct", "optSales", 3);
    session.press("frmProduct", "cmdExit");
    session.copy(withSales(u"2000", u"OTHERITEM "));
    session.press("startup", "Command1");
    EXPECT_TRUE(session.visible("frmProduct"));
    EXPECT_THAT(session.options("frmProduct", "opt12").chosen, ElementsAre(2));
    EXPECT_THAT(session.options("frmProduct", "optSales").chosen, ElementsAre(3));
    EXPECT_EQ(values().size(), 7u);
    EXPECT_EQ(title(1), u"Profit%");
    EXPECT_EQ(title(2), u"Product: 0020450001 ");
}

TEST_F(HistoryWindowTest, PrintsOneJobACopy)
{
    session.platform.printer = {RecordingPlatform::Printer::Answer::Accept, 3};
    session.press("frmProduct", "cmdPrint");
    EXPECT_THAT(session.events(), ElementsAre("print frmProduct", "print frmProduct", "print frmProduct"));
}

TEST_F(HistoryWindowTest, PrintsNothingWhenTheDialogIsCancelled)
{
    session.platform.printer = {RecordingPlatform::Printer::Answer::Cancel, 3};
    session.press("frmProduct", "cmdPrint");
    EXPECT_THAT(session.events(), IsEmpty());
    EXPECT_TRUE(session.visible("frmProduct"));
}

TEST_F(HistoryWindowTest, SaysNothingWhenPrintingFails)
{
    session.platform.printer = {RecordingPlatform::Printer::Answer::Fail, 3};
    session.press("frmProduct", "cmdPrint");
    EXPECT_THAT(session.events(), IsEmpty());
    EXPECT_FALSE(session.platform.over());
}

TEST_F(HistoryWindowTest, ACopyCountBelowOnePrintsNothing)
{
    for (const double copies : {0.0, -1.0, -32768.0}) {
        session.platform.printer = {RecordingPlatform::Printer::Answer::Accept, copies};
        session.press("frmProduct", "cmdPrint");
        EXPECT_THAT(session.events(), IsEmpty());
    }
}

TEST_F(HistoryWindowTest, ACopyCountBeyond16BitsFailsSilently)
{
    for (const double copies : {32768.0, 40000.0, -32769.0}) {
        session.platform.printer = {RecordingPlatform::Printer::Answer::Accept, copies};
        session.press("frmProduct", "cmdPrint");
        EXPECT_THAT(session.events(), IsEmpty());
        EXPECT_FALSE(session.platform.over());
    }
}

TEST_F(HistoryWindowTest, TheLargestCopyCountIsPrinted)
{
    session.platform.printer = {RecordingPlatform::Printer::Answer::Accept, 32767};
    session.press("frmProduct", "cmdPrint");
    EXPECT_EQ(session.events().size(), 32767u);
}

TEST_F(HistoryWindowTest, PrintingDoesNotReadTheClipboard)
{
    session.copy(u"");
    session.platform.printer = {RecordingPlatform::Printer::Answer::Accept, 1};
    session.press("frmProduct", "cmdPrint");
    EXPECT_THAT(session.events(), ElementsAre("print frmProduct"));
    EXPECT_EQ(newest(), 1000);
}

TEST_F(HistoryWindowTest, AFailureThatNobodyHandlesEndsTheProcess)
{
    session.copy(CaptureBuilder().put(1, 1, u"QXM31H").text());
    session.press("frmProduct", "cmdRefresh");
    EXPECT_THAT(session.events(), ElementsAre(StartsWith("error ")));
    EXPECT_TRUE(session.platform.over());
}

TEST_F(HistoryWindowTest, ACaptureThatEndsTooEarlyIsReadWithoutEnd)
{
    session.copy(CaptureBuilder(10).put(1, 1, u"QXM31H").text());
    session.choose("frmProduct", "optSales", 1);
    EXPECT_THAT(session.events(), ElementsAre("spin"));
    EXPECT_TRUE(session.platform.over());
}

TEST(HistoryWindowLoad, IsDrawnOnceItLoadsWithTheDefaults)
{
    struct Counting : RecordingPlatform {
        int reads = 0;
        Text clipboardText() override
        {
            ++reads;
            return RecordingPlatform::clipboardText();
        }
    } platform;
    platform.clipboard = withSales(u"1000");
    Application app(platform);
    app.start();
    EXPECT_EQ(platform.reads, 2); // the start-up window's and the chart's
    const Chart chart = *app.window("frmProduct")->controls().chart("ChartFX1");
    EXPECT_EQ(chart.series.at(0).at(12), 1000);
    EXPECT_EQ(chart.titles.at(1), u"Sales");
}

TEST(HistoryWindowLoad, AFailureWhileLoadingShowsNoWindow)
{
    Session session;
    session.start(CaptureBuilder().put(1, 1, u"QXM31H").text());
    EXPECT_THAT(session.events(), ElementsAre("load startup", "show startup", "hide startup",
                                              "load frmProduct", StartsWith("error ")));
}

} // namespace
} // namespace plotvue
