// Steps through a ranked list: a click on a row, Back and Down, and what happens at its ends.
#include "app/recognition.h"
#include "rankedfixture.h"

#include <stdexcept>

namespace plotvue::test {
namespace {

class RankedSteps : public testing::TestWithParam<ThreeEntries> {
protected:
    RankedSession opened(int row) { return {GetParam().list, GetParam().capture, row}; }

    // Expects that this entry is charted and that the chosen-row file names it.
    void expectEntry(RankedSession& session, std::size_t number)
    {
        EXPECT_TRUE(session.subject().starts_with(GetParam().subjects.at(number - 1)));
        EXPECT_EQ(session.file("plotvue1.txt"), GetParam().keys.at(number - 1));
    }
};

INSTANTIATE_TEST_SUITE_P(Every, RankedSteps, testing::ValuesIn(everyRankedScreen()), nameOfList);

TEST_P(RankedSteps, ARowOpensItsChart)
{
    RankedSession session(GetParam().list, GetParam().capture);
    session.events();
    session.click(2);
    EXPECT_EQ(session.events(), (Events{"load " + session.drillDown, "show " + session.drillDown}));
    EXPECT_TRUE(session.visible(session.list));
    expectEntry(session, 2);
}

TEST_P(RankedSteps, AnotherRowIsDrawnWithTheNextStepOrType)
{
    RankedSession session = opened(1);
    session.click(3);
    EXPECT_EQ(session.events(), Events{});
    EXPECT_TRUE(session.subject().starts_with(GetParam().subjects[0]));
    EXPECT_EQ(session.file("plotvue1.txt"), GetParam().keys[2]);
    if (GetParam().hasTypes) {
        session.chooseType(1);
        expectEntry(session, 3);
    }
    session.click(1);
    session.down();
    expectEntry(session, 2);
    session.use("cmdExit");
    session.click(1);
    expectEntry(session, 1);
}

TEST_P(RankedSteps, DownGoesThroughTheListToItsEnd)
{
    RankedSession session = opened(1);
    const std::string list = session.file("plotvue.txt");
    for (const std::size_t next : {2u, 3u}) {
        session.down();
        expectEntry(session, next);
    }
    EXPECT_EQ(session.events(), Events{});
    session.down();
    EXPECT_EQ(session.events(), endOfList(session.drillDown));
    EXPECT_FALSE(session.loaded(session.drillDown));
    EXPECT_TRUE(session.visible(session.list));
    EXPECT_EQ(session.file("plotvue1.txt"), GetParam().keys[2]);
    EXPECT_EQ(session.file("plotvue.txt"), list);
}

TEST_P(RankedSteps, BackGoesThroughTheListToItsBeginning)
{
    RankedSession session = opened(3);
    const std::string list = session.file("plotvue.txt");
    for (const std::size_t next : {2u, 1u}) {
        session.back();
        expectEntry(session, next);
    }
    EXPECT_EQ(session.events(), Events{});
    session.back();
    EXPECT_EQ(session.events(), endOfList(session.drillDown));
    EXPECT_FALSE(session.loaded(session.drillDown));
    EXPECT_TRUE(session.visible(session.list));
    EXPECT_EQ(session.file("plotvue1.txt"), GetParam().keys[0]);
    EXPECT_EQ(session.file("plotvue.txt"), list);
    session.click(3);
    EXPECT_EQ(session.events(), (Events{"load " + session.drillDown, "show " + session.drillDown}));
    expectEntry(session, 3);
}

TEST_P(RankedSteps, AListOfOneEndsBothWays)
{
    for (const Name button : {"cmdBack", "cmdNext"}) {
        RankedSession session(GetParam().list, GetParam().before(2), 1);
        session.use(button);
        EXPECT_EQ(session.events(), endOfList(session.drillDown));
    }
}

TEST_P(RankedSteps, CloseUnloadsTheChartAndLeavesTheList)
{
    for (const bool titleBar : {false, true}) {
        RankedSession session = opened(1);
        titleBar ? session.close(session.drillDown) : session.use("cmdExit");
        EXPECT_EQ(session.events(), (Events{"hide " + session.drillDown, "unload " + session.drillDown}));
        EXPECT_TRUE(session.visible(session.list));
    }
}

TEST_P(RankedSteps, KeepTheDataTypeUntilTheChartIsClosed)
{
    if (!GetParam().hasTypes)
        return;
    RankedSession session = opened(1);
    session.chooseType(2);
    session.down();
    EXPECT_EQ(session.drawn().titles.at(1), u"Volume");
    expectEntry(session, 2);
    session.use("cmdExit");
    session.click(1);
    EXPECT_EQ(session.options(session.drillDown, "optSales").chosen, std::vector{0});
    EXPECT_EQ(session.drawn().titles.at(1), u"Sales");
}

// The key of a row, taken from its cells and written as in the chosen-row file.
std::string keyOfRow(const RankedScreen& screen, const Texts& row)
{
    std::string record;
    for (const KeyPart& part : screen.key.parts) {
        const std::string cell = toUtf8(row.at(static_cast<std::size_t>(part.gridColumn)));
        record += (record.empty() ? "" : ",") + (part.number ? cell : '"' + cell + '"');
    }
    return record + "\r\n";
}

Text sampleOf(const RankedScreen& screen)
{
    for (const auto& entry : std::filesystem::directory_iterator(PLOTVUE_SAMPLES)) {
        const Text text = sample(entry.path().stem().string());
        const Screen* recognised = recognise(text);
        const auto* ranked = recognised ? std::get_if<Ranked>(&recognised->window) : nullptr;
        if (ranked && ranked->list == &screen)
            return text;
    }
    throw std::out_of_range("there is no sample of this screen");
}

TEST_P(RankedSteps, WalkTheWholeSample)
{
    RankedSession session(GetParam().list, sampleOf(GetParam().screen), 1);
    const Rows rows = session.rows();
    EXPECT_GT(rows.size(), 3u);
    for (std::size_t row = 1; row < rows.size(); ++row) {
        session.down();
        EXPECT_EQ(session.file("plotvue1.txt"), keyOfRow(GetParam().screen, rows[row]));
    }
    for (std::size_t row = rows.size() - 1; row-- > 0;) {
        session.back();
        EXPECT_EQ(session.file("plotvue1.txt"), keyOfRow(GetParam().screen, rows[row]));
    }
}

MonthToMonthScreen gains(int count)
{
    MonthToMonthScreen screen;
    for (int rank = 1; rank <= count; ++rank)
        screen.add(rank, digits(1000 - rank));
    return screen;
}

TEST(RankedKeys, OfTwoEntriesAlikeTheFirstIsTaken)
{
    MonthToMonthScreen screen = gains(4);
    for (const int number : {2, 3})
        screen.put(ProfitScreen::lineOf(number), 14, u"10777")
            .put(ProfitScreen::lineOf(number), 51, u"TWICE  ");
    RankedSession session(m2m, screen.text(), 3);
    EXPECT_EQ(session.column(2), (Texts{u"10001", u"10777", u"10777", u"10004"}));
    EXPECT_EQ(session.newest(), 21);
    session.back();
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10001");
    // Two entries have the same key, so the second is found as the first, and Down never gets past it.
    for (int press = 0; press < 3; ++press) {
        session.down();
        EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10777");
    }
    EXPECT_EQ(session.newest(), 21);
}

TEST(RankedKeys, TheSameCustomerWithAnotherGroupIsAnother)
{
    MonthToMonthScreen screen = gains(3);
    for (const int number : {1, 2, 3})
        screen.put(ProfitScreen::lineOf(number), 14, u"10777");
    RankedSession session(m2m, screen.text(), 3);
    EXPECT_EQ(session.newest(), 31);
    session.back();
    EXPECT_EQ(session.newest(), 21);
}

TEST(RankedKeys, AHundredEntriesAreWalked)
{
    // Each entry has only two lines here, because the list reads 500 lines at most.
    Text capture = u"TO MONTH PROFIT AN\r\n";
    for (int entry = 1; entry <= 100; ++entry)
        capture +=
            u"RANK:" + atRight(digits(entry), 3) + u"     " + digits(10000 + entry) + u"\r\nGAIN:  5\r\n";
    RankedSession session(m2m, capture, 100);
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10100");
    session.back();
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10099");
    session.down();
    session.down();
    EXPECT_EQ(session.events(), endOfList(session.drillDown));
}

} // namespace
} // namespace plotvue::test
