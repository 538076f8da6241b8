// What the list windows of the ranked screens have in common: which lines of the capture they read, which
// entries they list, and how they are opened and left.
#include "rankedfixture.h"

#include <algorithm>

namespace plotvue::test {
namespace {

class RankedList : public testing::TestWithParam<ThreeEntries> {
protected:
    RankedSession opened(TextSpan capture) { return {GetParam().list, capture}; }

    // The capture, with this line end in place of CR LF.
    Text endedBy(TextSpan lineEnd)
    {
        Text text = GetParam().capture;
        for (std::size_t at = 0; (at = text.find(u"\r\n", at)) != Text::npos; at += lineEnd.size())
            text.replace(at, 2, lineEnd);
        return text;
    }
};

INSTANTIATE_TEST_SUITE_P(Every, RankedList, testing::ValuesIn(everyRankedScreen()), nameOfList);

TEST_P(RankedList, OpensFromTheCaptureOnTheClipboard)
{
    RankedSession session = opened(GetParam().capture);
    EXPECT_EQ(session.events(), opening(GetParam().list));
    EXPECT_EQ(session.rows().size(), 3u);
    EXPECT_EQ(session.grid(session.list).rows, 4); // the headings are a row
    EXPECT_EQ(session.file("pvuscrn.txt"), "\"" + toUtf8(GetParam().capture) + "\"\r\n");
    EXPECT_FALSE(session.fileExists("plotvue.txt"));
    EXPECT_FALSE(session.fileExists("plotvue1.txt"));
}

TEST_P(RankedList, ARecordHoldsTheLinesOfAnEntry)
{
    const auto linesBefore = [](int entry) { return std::ranges::count(GetParam().before(entry), u'\r'); };
    EXPECT_EQ(GetParam().screen.linesAnEntry, linesBefore(3) - linesBefore(2));
}

TEST_P(RankedList, BlankLinesAreNoLines)
{
    RankedSession session = opened(endedBy(u"\r\n\r\n\t\r\n"));
    EXPECT_EQ(session.rows().size(), 3u);
    session.click(2);
    EXPECT_TRUE(session.subject().starts_with(GetParam().subjects[1]));
}

TEST_P(RankedList, ACarriageReturnAloneEndsALine)
{
    EXPECT_EQ(opened(endedBy(u"\r")).rows().size(), 3u);
}

TEST_P(RankedList, ALastLineWithoutItsEndIsNotRead)
{
    const Text& whole = GetParam().capture;
    EXPECT_EQ(opened(whole.substr(0, whole.find(u'\r', GetParam().placeOf(3)))).rows().size(), 2u);
}

TEST_P(RankedList, LinesAfterTheLastOneThatIsReadAreIgnored)
{
    const Name list = GetParam().list;
    const std::ptrdiff_t limit = list == pastdue ? 1000 : 500;
    // On the profit screens, the second line of an entry adds its row, on the others the first.
    const std::ptrdiff_t countedLine = list == m2m || list == profRank ? 1 : 0;
    const Text before = GetParam().before(3), third = GetParam().capture.substr(before.size());
    Text filled = before;
    for (auto line = std::ranges::count(before, u'\r') + countedLine + 1; line < limit; ++line)
        filled += u".\r\n\r\n"; // the blank lines do not count
    RankedSession session = opened(filled + third);
    EXPECT_EQ(session.rows().size(), 3u);
    session.click(1); // writes the list file
    EXPECT_NE(session.file("plotvue.txt").find(toUtf8(third.substr(0, third.find(u'\r')))),
              std::string::npos);
    session.open(filled + u".\r\n" + third);
    EXPECT_EQ(session.rows().size(), 2u);
}

TEST_P(RankedList, ACaptureCutAnywhereIsNoError)
{
    const TextSpan whole = GetParam().capture;
    for (std::size_t length = whole.find(u'\r'); length <= whole.size(); ++length) {
        const RankedFigures figures = readRanked(GetParam().screen, whole.substr(0, length));
        EXPECT_TRUE(figures.accepted) << length;
        for (const RankedGrid& grid : GetParam().screen.grids)
            EXPECT_EQ(ranksIn(grid, figures).size(), figures.counts[static_cast<std::size_t>(grid.count)])
                << length;
    }
}

TEST_P(RankedList, AQuoteEndsTheCapture)
{
    RankedSession session = opened(Text(GetParam().capture).insert(GetParam().placeOf(3), u"\""));
    EXPECT_EQ(session.events(), opening(GetParam().list));
    EXPECT_EQ(session.rows().size(), 2u);
}

TEST_P(RankedList, WithoutItsTitleShowsTheStartAgain)
{
    RankedSession session = opened(u"\"" + GetParam().capture);
    EXPECT_EQ(session.events(), refusing(GetParam().list));
    EXPECT_TRUE(session.visible("startup"));
    EXPECT_FALSE(session.visible(GetParam().list));
    EXPECT_TRUE(session.rows().empty());
}

TEST_P(RankedList, ExitGoesBackToTheStart)
{
    const std::string list(GetParam().list);
    const Events exit{"hide " + list, "show startup"};
    RankedSession session = opened(GetParam().capture);
    session.events();
    session.press(list, "cmdExit");
    EXPECT_EQ(session.events(), exit);
    session.copy(GetParam().before(3));
    session.press("startup", "Command1");
    EXPECT_EQ(session.events(), (Events{"hide startup", "load " + list, "show " + list}));
    EXPECT_EQ(session.rows().size(), 2u);
    session.close(list);
    EXPECT_EQ(session.events(), exit);
}

TEST_P(RankedList, PrintsACopyAJob)
{
    RankedSession session(GetParam().list, GetParam().capture, 1);
    session.press(session.list, "cmdPrint");
    session.use("cmdPrint");
    EXPECT_EQ(session.events(), Events{});
    session.platform.printer = {.answer = RecordingPlatform::Printer::Answer::Accept, .copies = 2};
    session.press(session.list, "cmdPrint");
    session.use("cmdPrint");
    const std::string list = "print " + std::string(session.list), chart = "print " + session.drillDown;
    EXPECT_EQ(session.events(), (Events{list, list, chart, chart}));
}

TEST_P(RankedList, ARankOutsideTheTableIsARunTimeError)
{
    if (GetParam().list == ratios)
        return; // ratios have no ranks
    const Text before = GetParam().before(3);
    const std::string line = std::to_string(std::ranges::count(before, u'\r') + 1);
    for (const TextSpan rank : {u"  0", u"101", u" -1", u"   ", u"999", u"ABC", u"9E9"}) {
        RankedSession session = opened(Text(GetParam().capture).replace(before.size() + 5, 3, rank));
        EXPECT_TRUE(failed(session, "error Line " + line + " of the copied text: A rank on the screen is "))
            << toUtf8(rank);
        EXPECT_FALSE(session.visible(session.list));
    }
}

struct RankedLines {
    Name list;
    Lines lines;
};

class RankedScreens : public testing::TestWithParam<RankedLines> {};
class RankedFirstFigures : public RankedScreens {};

TEST_P(RankedFirstFigures, BeforeAnyEntryAreARunTimeError)
{
    RankedSession session(GetParam().list, hostScreen(GetParam().lines));
    EXPECT_TRUE(
        failed(session, "A rank on the screen is outside 1 to 100, which is all that can be listed."));
    EXPECT_FALSE(session.visible(session.list));
}

INSTANTIATE_TEST_SUITE_P(Every, RankedFirstFigures,
                         testing::Values(RankedLines{pastdue, {pastdueTitle, pastdueMonths, u"OCT99     1"}},
                                         RankedLines{vendors, {vendorTitle, u"F:  1"}},
                                         RankedLines{ratios, {ratioTitle, u"2:CUR "}},
                                         RankedLines{ratios, {ratioTitle, u"3:    1.0"}}));

class RankedHundred : public RankedScreens {
protected:
    // The first line once, then the other lines for every rank, with the rank in place of "***".
    Text capture(int count)
    {
        Text text = hostScreen({GetParam().lines[0]});
        for (int rank = 1; rank <= count; ++rank)
            for (std::size_t line = 1; line < GetParam().lines.size(); ++line) {
                Text next = hostScreen({GetParam().lines[line]});
                if (const std::size_t place = next.find(u"***"); place != Text::npos)
                    next.replace(place, 3, atRight(digits(std::min(rank, 100)), 3));
                text += next;
            }
        return text;
    }
};

TEST_P(RankedHundred, AreListed)
{
    RankedSession session(GetParam().list, capture(100));
    EXPECT_EQ(session.events(), opening(GetParam().list));
    const Text last = GetParam().list == ratios ? u"R999" : u"100";
    EXPECT_EQ(session.rows().size(), 100u);
    EXPECT_EQ(session.rows().at(99).at(0), last);
}

TEST_P(RankedHundred, AndOneMoreAreARunTimeError)
{
    if (GetParam().list == vendors)
        return; // its list has as many rows as the highest rank, which is 100 here
    RankedSession session(GetParam().list, capture(101));
    EXPECT_TRUE(
        failed(session, "A rank on the screen is outside 1 to 100, which is all that can be listed."));
}

INSTANTIATE_TEST_SUITE_P(Every, RankedHundred,
                         testing::Values(RankedLines{m2m, {u"TO MONTH PROFIT AN", u"RANK:***", u"GAIN:  5"}},
                                         RankedLines{profRank,
                                                     {u"RANKED PROFIT AN", u"RANK:***", u"P:     5"}},
                                         RankedLines{pastdue, {pastdueTitle, u"RANK:***"}},
                                         RankedLines{vendors, {vendorTitle, u"RANK:***"}},
                                         RankedLines{ratios, {ratioTitle, u"1:R999"}}));

struct Windows {
    Name list;
    Text caption; // of both windows
    Texts listControls, drillDownControls;
};

class RankedControls : public testing::TestWithParam<Windows> {};

TEST_P(RankedControls, AreNamedAndCaptioned)
{
    const auto entries = std::ranges::find(everyRankedScreen(), GetParam().list, &ThreeEntries::list);
    RankedSession session(GetParam().list, entries->capture, 1);
    EXPECT_EQ(session.controlNames(session.list), GetParam().listControls);
    EXPECT_EQ(session.controlNames(session.drillDown), GetParam().drillDownControls);
    EXPECT_EQ(session.caption(session.list), GetParam().caption);
    EXPECT_EQ(session.caption(session.drillDown), GetParam().caption);
    EXPECT_EQ(session.text(session.list, "cmdExit"), u"Exit");
    EXPECT_EQ(session.text(session.list, "cmdPrint"), u"&Print");
    EXPECT_EQ(session.text(session.drillDown, "cmdBack"), u"");
    EXPECT_EQ(session.text(session.drillDown, "cmdNext"), u"Down");
    EXPECT_EQ(session.text(session.drillDown, "cmdExit"), u"Close");
    EXPECT_EQ(session.text(session.drillDown, "cmdPrint"), u"&Print");
    if (entries->hasTypes) {
        const OptionGroup types = session.options(session.drillDown, "optSales");
        EXPECT_EQ(captions(types), (Texts{u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"}));
        EXPECT_EQ(types.chosen, std::vector{0});
        for (int index = 0; index < 5; ++index)
            EXPECT_EQ(types.options.at(static_cast<std::size_t>(index)).index, index);
    }
}

const Texts profitControls{u"ChartFX1", u"ChartFX2", u"cmdBack", u"cmdExit",
                           u"cmdNext",  u"cmdPrint", u"optSales"};

INSTANTIATE_TEST_SUITE_P(
    Every, RankedControls,
    testing::Values(
        Windows{m2m,
                u"PlotVue!",
                {u"MSFlexGrid1", u"MSFlexGrid2", u"cmdExit", u"cmdPrint", u"txtHeader", u"txtL2", u"txtL3"},
                profitControls},
        Windows{profRank,
                u"PlotVue",
                {u"MSFlexGrid1", u"cmdExit", u"cmdPrint", u"txtHeader", u"txtL2", u"txtL3"},
                profitControls},
        Windows{pastdue,
                u"PlotVue",
                {u"MSFlexGrid1", u"cmdExit", u"cmdPrint", u"txtHeader"},
                {u"ChartFX1", u"cmdBack", u"cmdExit", u"cmdNext", u"cmdPrint"}},
        Windows{vendors,
                u"PlotVue",
                {u"MSFlexGrid1", u"cmdExit", u"cmdPrint", u"cmdTips", u"txtHeader", u"txtHeader2"},
                profitControls},
        Windows{ratios,
                u"PlotVue",
                {u"MSFlexGrid1", u"cmdExit", u"cmdPrint", u"lblA", u"lblCompany"},
                {u"ChartFX1", u"cmdBack", u"cmdExit", u"cmdFormula", u"cmdNext", u"cmdNote", u"cmdPrint"}}),
    nameOfList);

// Lists with incomplete entries, tested in the month-to-month window ----------------------

TEST(RankedEntries, CutOffAreListedWithWhatIsThere)
{
    const Text whole = MonthToMonthScreen().add(1, u"20").add(2, u"10").text();
    RankedSession session(m2m, whole.substr(0, whole.find(u'\r', whole.find(u"10002")) + 2));
    EXPECT_EQ(session.column(2), Texts{u"10001"});
    session.open(whole.substr(0, whole.find(u'\r', whole.rfind(u"GAIN:")) + 2));
    EXPECT_EQ(session.column(2), (Texts{u"10001", u"10002"}));
    session.click(2);
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10002");
    EXPECT_EQ(session.drawn().series[0], Numbers(13, 0));
    EXPECT_FALSE(session.platform.over());
}

TEST(RankedEntries, ALineOfBlanksIsALine)
{
    MonthToMonthScreen screen;
    screen.add(1, u"10").put(7, 1, Text(106, u' '));
    RankedSession session(m2m, screen.text(), 1);
    session.chooseType(2);
    EXPECT_EQ(session.drawn().series[0], Numbers(13, 0));
    session.chooseType(0);
    EXPECT_EQ(session.newest(), 11);
}

TEST(RankedEntries, OfAMissingRankAreZeros)
{
    RankedSession session(m2m, MonthToMonthScreen().add(1, u"30").add(3, u"10").text());
    EXPECT_EQ(session.rows(), (Rows{{u"1", u"30", u"10001", atLeft(u"CUSTOMER 1", 30), u"GROUP 1   "},
                                    {u"2", u"0", u"0", u"", u""}}));
    EXPECT_TRUE(session.rows(lossesGrid).empty());
    // The key of rank 2 is the number 0 and an empty group. The first short line matches it.
    session.click(2);
    EXPECT_EQ(session.file("plotvue1.txt"), "0,\"\"\r\n");
    EXPECT_EQ(session.subject(), u"Customer: H PRO - IT ANALYSIS\r");
}

} // namespace
} // namespace plotvue::test
