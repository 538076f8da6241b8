// The small files between a list and its drill-down window, and what happens when they are not as they were
// written.
#include "rankedfixture.h"
#include "support/windows.h"

namespace plotvue::test {
namespace {

enum class Use { Click, Back, Down, Type };
enum class Trouble { Missing, Directory, AnotherEntry };

struct Case {
    Use use;
    Trouble trouble;
    const char* file;
    std::string error{}; // beginning of what is said after the file's name; empty: "End of list"
};

const char* const list = "plotvue.txt";
const char* const chosenRow = "plotvue1.txt";

const Case cases[]{
    {Use::Click, Trouble::Directory, list, "cannot be created ("},
    {Use::Click, Trouble::Directory, chosenRow, "cannot be created ("},
    {Use::Back, Trouble::Missing, list, "cannot be opened ("},
    {Use::Back, Trouble::Missing, chosenRow, "cannot be opened ("},
    {Use::Back, Trouble::Directory, list, "cannot be read ("},
    {Use::Back, Trouble::Directory, chosenRow, "cannot be read ("},
    {Use::Back, Trouble::AnotherEntry, list, "ends too early."},
    {Use::Down, Trouble::Missing, list},
    {Use::Down, Trouble::Missing, chosenRow, "cannot be opened ("},
    {Use::Down, Trouble::Directory, list},
    {Use::Down, Trouble::Directory, chosenRow, "cannot be read ("},
    {Use::Down, Trouble::AnotherEntry, list},
    {Use::Type, Trouble::Missing, list, "cannot be opened ("},
    {Use::Type, Trouble::Missing, chosenRow, "cannot be opened ("},
    {Use::Type, Trouble::Directory, list, "cannot be read ("},
    {Use::Type, Trouble::Directory, chosenRow, "cannot be read ("},
    {Use::Type, Trouble::AnotherEntry, list, "ends too early."},
};

void step(RankedSession& session, Use use)
{
    switch (use) {
    case Use::Click:
        return session.click(1);
    case Use::Back:
        return session.back();
    case Use::Down:
        return session.down();
    case Use::Type:
        return session.chooseType(1);
    }
}

class RankedFiles : public testing::TestWithParam<ThreeEntries> {};

INSTANTIATE_TEST_SUITE_P(Every, RankedFiles, testing::ValuesIn(everyRankedScreen()), nameOfList);

TEST_P(RankedFiles, InTroubleEndTheProcessOrTheList)
{
    for (const auto& [use, trouble, file, error] : cases) {
        if (use == Use::Type && !GetParam().hasTypes)
            continue;
        RankedSession session(GetParam().list, GetParam().capture, 1);
        if (trouble == Trouble::AnotherEntry)
            writeFile(chosenRow, "77,\"NOBODY\"\r\n");
        else if (trouble == Trouble::Directory)
            blockFile(file);
        else
            std::filesystem::remove(file);
        step(session, use);
        const Events events = session.events();
        if (error.empty()) {
            EXPECT_EQ(events, endOfList(session.drillDown)) << file;
            continue;
        }
        ASSERT_EQ(events.size(), 1u) << file << error;
        EXPECT_TRUE(events[0].starts_with("error The file " + std::string(file) +
                                          " in the working directory " + error))
            << events[0];
        EXPECT_TRUE(events[0].ends_with("."));
        EXPECT_TRUE(session.platform.over());
    }
}

TEST_P(RankedFiles, OfTwoMissingTheChosenRowIsReported)
{
    for (const Use use : {Use::Back, Use::Down, Use::Type}) {
        if (use == Use::Type && !GetParam().hasTypes)
            continue;
        RankedSession session(GetParam().list, GetParam().capture, 1);
        std::filesystem::remove(list);
        std::filesystem::remove(chosenRow);
        step(session, use);
        EXPECT_TRUE(
            failed(session, "error The file plotvue1.txt in the working directory cannot be opened ("));
    }
}

TEST_P(RankedFiles, TheScratchFileCannotBeWritten)
{
    Session session;
    blockFile("pvuscrn.txt");
    session.start(GetParam().capture);
    const Events events = session.events();
    ASSERT_EQ(events.size(), 3u);
    EXPECT_TRUE(
        events[2].starts_with("error The file pvuscrn.txt in the working directory cannot be created ("));
}

TEST_P(RankedFiles, TheScratchFileIsMissing)
{
    Session session;
    session.platform.run([&] { test::windowNamed(session.app, GetParam().list)->show(); });
    EXPECT_TRUE(failed(session, "error The file pvuscrn.txt in the working directory cannot be opened ("));
}

TEST_P(RankedFiles, TheScratchFileCannotBeRead)
{
    RankedSession session(GetParam().list, u"\"" + GetParam().capture); // shows the start-up window
    session.copy(GetParam().capture);
    session.platform.listener = [&, before = session.platform.listener](const Event& event) {
        if (event.kind == Event::Kind::Load)
            blockFile("pvuscrn.txt");
        before(event);
    };
    session.press("startup", "Command1");
    EXPECT_TRUE(failed(session, "error The file pvuscrn.txt in the working directory cannot be read ("));
}

// The five lines of an entry, each with its carriage return, written as fields of a record.
std::string fields(const CaptureBuilder& capture, int number)
{
    const Text text = capture.text(u"\r");
    std::size_t start = 0;
    for (std::size_t line = 1; line < ProfitScreen::lineOf(number); ++line)
        start = text.find(u'\r', start) + 1;
    std::string result;
    for (int i = 0; i < linesAnEntry; ++i) {
        const std::size_t end = text.find(u'\r', start) + 1;
        result += ",\"" + toUtf8(text.substr(start, end - start)) + "\"";
        start = end;
    }
    return result;
}

TEST(ListFile, HoldsTheGridThatWasClicked)
{
    MonthToMonthScreen screen;
    screen.add(1, u"30", u"20", u"10").add(2, u"-5").add(3, u"10");
    const std::string labels = "\"" + toUtf8(monthLabels) + "\"";
    RankedSession session(m2m, screen.text(), 2);
    EXPECT_EQ(session.file("plotvue.txt"),
              labels + fields(screen, 1) + "\r\n" + labels + fields(screen, 3) + "\r\n");
    EXPECT_EQ(session.file("plotvue1.txt"), "10003,\"GROUP 3   \"\r\n");
    session.click(1, lossesGrid);
    EXPECT_EQ(session.file("plotvue.txt"), labels + fields(screen, 2) + "\r\n");
    EXPECT_EQ(session.file("plotvue1.txt"), "10002,\"GROUP 2   \"\r\n");
}

TEST(ListFile, LettersBeyondAsciiKeepTheirColumns)
{
    MonthToMonthScreen screen;
    screen.add(1, u"5").put(5, 20, u"CAF\u00C9 \u00C5NGSTR\u00D6M").put(5, 51, u"\u00D6L 1   ");
    RankedSession session(m2m, screen.text(), 1);
    EXPECT_EQ(session.file("plotvue1.txt"), "10001,\"\xC3\x96L 1      \"\r\n");
    EXPECT_EQ(session.subject(), u"Customer: 10001 - " + atLeft(u"CAF\u00C9 \u00C5NGSTR\u00D6M", 30));
    EXPECT_EQ(session.drawn().titles.at(3), u"Product: \u00D6L 1      ");
}

TEST(ListFile, IsReadAgainForEveryDrawing)
{
    RankedSession session(m2m, everyRankedScreen()[0].capture, 1);
    const std::string records = session.file("plotvue.txt");
    writeFile("plotvue1.txt", "10003,\"GROUP 3   \"\r\n");
    session.chooseType(0);
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 10003");
    writeFile("plotvue.txt", std::string(records).replace(records.find("CUSTOMER 3"), 10, "SOMEBODY  "));
    session.chooseType(0);
    EXPECT_EQ(session.subject().substr(18, 8), u"SOMEBODY");
}

// Records of the customers 20001, 20002 and so on, none of whom is the chosen one.
std::string others(int count, const std::string& restOfRecord)
{
    std::string records;
    for (int number = 1; number <= count; ++number)
        records += "\"\",\"RANK:  1     " + std::to_string(20000 + number) + "\"" + restOfRecord + "\r\n";
    return records;
}

TEST(ListFile, GivesTheHundredthRecordWhenNoneBeforeItIsTheOne)
{
    RankedSession session(m2m, everyRankedScreen()[0].capture, 1);
    writeFile("plotvue.txt", others(102, R"(,"","","","")"));
    session.chooseType(1);
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 20100");
    session.back();
    EXPECT_EQ(session.subject().substr(0, 15), u"Customer: 20099");
}

TEST(ListFile, GivesTheFiveHundredthRecordOfPastDueCustomers)
{
    RankedSession session(pastdue, everyRankedScreen()[2].capture, 1);
    writeFile("plotvue.txt", others(502, R"(,"","","","","","","")"));
    session.down();
    EXPECT_EQ(session.file("plotvue1.txt"), "20501\r\n");
}

} // namespace
} // namespace plotvue::test
