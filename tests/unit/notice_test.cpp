// A window says when it does not show what was last asked for.
#include "rankedfixture.h"
#include "support/chartwindow.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

constexpr TextSpan never = u"Nothing is charted yet. Press Refresh to chart the copied screen.";
constexpr TextSpan earlier = u"This chart is of an earlier copy. Press Refresh to chart the copied screen.";
constexpr TextSpan options =
    u"This chart does not show the chosen options. Press Refresh to chart the copied screen.";
constexpr TextSpan anotherText = u"The clipboard holds another text now. Press Refresh to chart it.";
constexpr TextSpan anotherRow = u"Another row was chosen. Choose a data type to chart it.";
constexpr TextSpan rowWithoutTypes = u"Another row was chosen. Close this chart and click the row again.";
constexpr TextSpan replaced = u"The list of this chart was replaced. Close this chart.";

class Notice : public testing::Test {
protected:
    // Another copy of the sample: the same screen with another character in its first line.
    static Text otherCopy(std::string_view name)
    {
        return CaptureBuilder(sample(name)).put(1, 60, u"*").text();
    }

    Text notice(Name window) { return session.notice(window); }
    void refreshStartup() { session.press("startup", "Command1"); }
    void leave(Name window) { session.press(window, "cmdExit"); }

    // Leaves the window, copies and comes back.
    void comeBack(Name window, TextSpan capture)
    {
        leave(window);
        session.copy(capture);
        refreshStartup();
    }

    Session session;
};

TEST_F(Notice, AWindowThatChartsTheCopiedScreenHasNone)
{
    session.start(sample("product"));
    EXPECT_EQ(notice("frmProduct"), u"");
    EXPECT_EQ(notice("startup"), u"");
    comeBack("frmProduct", sample("product"));
    EXPECT_EQ(notice("frmProduct"), u"");
}

TEST_F(Notice, AnEarlierCopy)
{
    session.start(sample("product"));
    comeBack("frmProduct", otherCopy("product"));
    EXPECT_EQ(notice("frmProduct"), earlier);
    EXPECT_EQ(session.chart("frmProduct").titles.at(2), u"Product: 0020450001 DIESEL FUEL NO. 2 LOW SULFUR");
    session.press("frmProduct", "cmdRefresh");
    EXPECT_EQ(notice("frmProduct"), u"");
}

TEST_F(Notice, AnEarlierCopyInAGroupWindowGoesWithAnOption)
{
    session.start(sample("salesmencategories"));
    comeBack("frmQXM21SXC", otherCopy("salesmencategories"));
    EXPECT_EQ(notice("frmQXM21SXC"), earlier);
    session.choose("frmQXM21SXC", "optSales", 1);
    EXPECT_EQ(notice("frmQXM21SXC"), u"");
}

TEST_F(Notice, TheFirstCopyAgainIsNoEarlierOne)
{
    session.start(sample("product"));
    comeBack("frmProduct", otherCopy("product"));
    comeBack("frmProduct", sample("product"));
    EXPECT_EQ(notice("frmProduct"), u"");
}

TEST_F(Notice, GoesWithTheWindowAndComesBackWithIt)
{
    session.start(sample("product"));
    comeBack("frmProduct", otherCopy("product"));
    leave("frmProduct");
    EXPECT_EQ(notice("frmProduct"), u"");
    EXPECT_EQ(notice("startup"), u"");
    refreshStartup();
    EXPECT_EQ(notice("frmProduct"), earlier);
}

// Without "QTY", the capture is still recognised, but the window refuses it.
TEST_F(Notice, NothingChartedYet)
{
    session.start(blotted(sample("custpack"), u"QTY"));
    EXPECT_FALSE(session.visible("frmCustP2"));
    EXPECT_EQ(notice("startup"), u"");
    refreshStartup();
    EXPECT_TRUE(session.visible("frmCustP2"));
    EXPECT_EQ(notice("frmCustP2"), never);
    comeBack("frmCustP2", sample("custpack"));
    EXPECT_EQ(notice("frmCustP2"), never);
    session.press("frmCustP2", "cmdRefresh");
    EXPECT_EQ(notice("frmCustP2"), u"");
}

TEST_F(Notice, AnotherTextOnAClick)
{
    session.start(sample("product"));
    session.copy(sample("customer"));
    session.choose("frmProduct", "optSales", 1);
    EXPECT_TRUE(session.visible("startup"));
    EXPECT_EQ(notice("startup"), anotherText);
    refreshStartup();
    EXPECT_EQ(notice("startup"), u"");
    EXPECT_TRUE(session.visible("frmCustomerE"));
    EXPECT_EQ(notice("frmCustomerE"), u"");
}

// "Profit" is chosen over a chart of the sales.
TEST_F(Notice, ChosenOptionsThatAreNotCharted)
{
    session.start(sample("product"));
    session.copy(sample("customer"));
    session.choose("frmProduct", "optSales", 1);
    session.copy(sample("product"));
    refreshStartup();
    EXPECT_EQ(notice("frmProduct"), options);
    session.choose("frmProduct", "optSales", 0);
    EXPECT_EQ(notice("frmProduct"), u"");
}

TEST_F(Notice, ChosenOptionsThatAreChartedAgain)
{
    session.start(sample("product"));
    session.copy(sample("customer"));
    session.choose("frmProduct", "optSales", 1);
    session.copy(otherCopy("product"));
    refreshStartup();
    // The chosen options are not charted either, but a window has only one notice.
    EXPECT_EQ(notice("frmProduct"), earlier);
}

TEST_F(Notice, AnotherTextGoesAlsoWhenThereIsNoScreen)
{
    session.start(sample("salesmencategories"));
    session.copy(u"no screen");
    session.press("frmQXM21SXC", "cmdRefresh");
    EXPECT_EQ(notice("startup"), anotherText);
    refreshStartup();
    EXPECT_TRUE(session.visible("startup"));
    EXPECT_EQ(notice("startup"), u"");
}

// Refresh leaves the salesman window when another screen was copied, but charts that screen all the same.
TEST_F(Notice, AWindowThatChartsWhileItIsHidden)
{
    session.start(sample("salesman"));
    session.copy(sample("product"));
    session.press("frmSalesman", "cmdRefresh");
    EXPECT_EQ(notice("startup"), anotherText);
    session.copy(sample("salesman"));
    refreshStartup();
    EXPECT_EQ(notice("frmSalesman"), earlier);
}

TEST_F(Notice, AWindowThatIsChartedAndLeftWhileItLoadsShowsTheCopiedScreen)
{
    session.start(blotted(sample("site"), u"QTY"));
    EXPECT_TRUE(session.visible("startup"));
    EXPECT_EQ(notice("startup"), u"");
    refreshStartup();
    EXPECT_TRUE(session.visible("frmSite"));
    EXPECT_EQ(notice("frmSite"), u"");
}

TEST_F(Notice, AListThatIsLoadedAnewHasNone)
{
    session.start(sample("vendors"));
    comeBack("frmVendInv", otherCopy("vendors"));
    EXPECT_EQ(notice("frmVendInv"), u"");
}

TEST_F(Notice, AnotherRowWhileTheChartIsOpen)
{
    RankedSession list("frmM2Mpft", sample("monthtomonth"), 1);
    EXPECT_EQ(list.notice("frmM2MpftA"), u"");
    list.click(2);
    EXPECT_EQ(list.notice("frmM2MpftA"), anotherRow);
    list.click(1);
    EXPECT_EQ(list.notice("frmM2MpftA"), u"");
    list.click(1, lossesGrid);
    EXPECT_EQ(list.notice("frmM2MpftA"), anotherRow);
    list.chooseType(0);
    EXPECT_EQ(list.notice("frmM2MpftA"), u"");
}

TEST_F(Notice, AStepThroughTheListChartsTheChosenRow)
{
    RankedSession list("frmM2Mpft", sample("monthtomonth"), 1);
    list.click(2);
    list.down();
    EXPECT_EQ(list.notice("frmM2MpftA"), u"");
    list.click(2); // the chart shows row 3
    EXPECT_EQ(list.notice("frmM2MpftA"), anotherRow);
    list.click(3);
    EXPECT_EQ(list.notice("frmM2MpftA"), u"");
}

TEST_F(Notice, AChartThatIsClosedAndOpenedAgainHasNone)
{
    RankedSession list("frmProfRank", sample("profitrank"), 1);
    list.click(2);
    EXPECT_EQ(list.notice("frmProfRankA"), anotherRow);
    list.use("cmdExit");
    list.click(3);
    EXPECT_EQ(list.notice("frmProfRankA"), u"");
}

TEST_F(Notice, WithoutDataTypesTheChartMustBeClosed)
{
    const std::pair<Name, std::string_view> lists[] = {{"frmPastdue", "pastdue"}, {"frmRatio", "ratios"}};
    for (const auto& [window, name] : lists) {
        RankedSession list(window, sample(name), 1);
        list.click(2);
        EXPECT_EQ(list.notice(list.drillDown), rowWithoutTypes) << window;
    }
}

TEST_F(Notice, TheSameRowOfAnotherCaptureIsAnotherRow)
{
    RankedSession list("frmVendInv", sample("vendors"), 1);
    list.open(CaptureBuilder(sample("vendors")).put(1, 79, u"*").text());
    list.click(1);
    // Only the first line of the screen has changed. No record holds it, so the row is still the same.
    EXPECT_EQ(list.notice("frmVendInvA"), u"");
    CaptureBuilder other(sample("vendors"));
    for (std::size_t line = 1; line < 20; ++line)
        if (other.line(line).starts_with(u"RANK:"))
            other.put(line, 79, u"*");
    list.open(other.text());
    list.click(1);
    EXPECT_EQ(list.notice("frmVendInvA"), anotherRow);
}

TEST_F(Notice, AnotherListReplacesTheFiles)
{
    RankedSession list("frmM2Mpft", sample("monthtomonth"), 1);
    list.press(list.list, "cmdExit");
    list.copy(sample("vendors"));
    list.press("startup", "Command1");
    EXPECT_EQ(list.notice("frmM2MpftA"), u"");
    list.clickRow("frmVendInv", firstGrid, 1);
    EXPECT_EQ(list.notice("frmM2MpftA"), replaced);
    EXPECT_EQ(list.notice("frmVendInvA"), u"");

    list.press("frmVendInv", "cmdExit");
    list.copy(sample("monthtomonth"));
    list.press("startup", "Command1");
    list.click(1);
    EXPECT_EQ(list.notice("frmM2MpftA"), u"");
    EXPECT_EQ(list.notice("frmVendInvA"), replaced);
}

// The second of two entries has rank 3, so no record holds the entry of row 2. That is an error only when
// the row is charted.
TEST_F(Notice, ARowThatCannotBeFoundIsAnotherRow)
{
    const auto screens = everyRankedScreen();
    const auto customers = std::ranges::find(screens, Name("frmPastdue"), &ThreeEntries::list);
    const Text capture = customers->before(2) + customers->capture.substr(customers->placeOf(3));
    RankedSession list(customers->list, capture, 1);
    list.click(2);
    EXPECT_FALSE(list.platform.over());
    EXPECT_EQ(list.notice(list.drillDown), rowWithoutTypes);
    list.use("cmdExit");
    list.click(2);
    EXPECT_TRUE(failed(list, "plotvue.txt"));
}

} // namespace
} // namespace plotvue::test
