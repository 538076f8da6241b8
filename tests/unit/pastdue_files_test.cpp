#include "capture/utf8.h"
#include "unit/pastdue_fixture.h"

#include <filesystem>
#include <fstream>

namespace plotvue {
namespace {

using namespace test;

constexpr Name list = "frmPastdue";
constexpr Name chart = "frmPastdueA";

struct TwoCustomers : Session {
    TwoCustomers() { start(twoCustomers()); }
    void open(int row)
    {
        clickRow(list, "MSFlexGrid1", row);
        events();
    }
    Text subject() { return this->chart("frmPastdueA").titles.at(2).substr(0, 5); }
};

TEST(PastdueFiles, NameTheCustomerAndHoldEveryCustomersLines)
{
    TwoCustomers session;
    session.open(2);
    EXPECT_EQ(session.file("plotvue1.txt"), "77\r\n");
    EXPECT_EQ(session.file("plotvue.txt"),
              "\"OCT99SEP99AUG99JUL99JUN99MAY99\","
              "\"RANK:  1     10442 NORTHSIDE TRUCKING             HARBOR CITY     OR 12345.00\r\","
              "\"       CURRENT  1 - 30 31 - 60 OVER 60\r\","
              "\"OCT99     1200     300      50     7.5\r\","
              "\"SEP99      900     200\r\","
              "\"AUG99      100      10       1      -3\r\","
              "\"JUL99      110      11       2       0\r\","
              "\"JUN99      120      12       3       0\r\","
              "\"MAY99      130      13       4       5\r\"\r\n"
              "\"OCT99SEP99AUG99JUL99JUN99MAY99\","
              "\"RANK:  2        77 ACME                           ELK             WA     0.00\r\","
              "\"       CURRENT  1 - 30 31 - 60 OVER 60\r\","
              "\"OCT99       10      20      30      40\r\","
              "\"SEP99       50      60      70      80\r\","
              "\"AUG99       90     100     110     120\r\","
              "\"JUL99      130     140     150     160\r\","
              "\"JUN99      170     180     190     200\r\","
              "\"MAY99      210     220     230     240\r\"\r\n");
}

TEST(PastdueFiles, ListTheCustomersByRank)
{
    Session session;
    session.start(hostScreen({pastdueTitle, u"RANK:  2     10002", u"B", u"RANK:  1     10001", u"A"}));
    session.clickRow(list, "MSFlexGrid1", 1);
    EXPECT_EQ(session.file("plotvue.txt"),
              "\"xxxxx\",\"RANK:  1     10001\r\",\"A\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
              "\"xxxxx\",\"RANK:  2     10002\r\",\"B\r\",\"RANK:  1     "
              "10001\r\",\"A\r\",\"\",\"\",\"\",\"\"\r\n");
}

TEST(PastdueFiles, ACustomerWithoutALineOfItsOwnGetsTheLinesOfTheOneBefore)
{
    Session session; // the second rank is marked where it is not to be found again
    session.start(hostScreen({pastdueTitle, u"RANK:  1     10001", u"       2     10002 RANK:"}));
    ASSERT_EQ(pastdueRows(session).size(), 2u);
    session.clickRow(list, "MSFlexGrid1", 1);
    EXPECT_EQ(
        session.file("plotvue.txt"),
        "\"xxxxx\",\"RANK:  1     10001\r\",\"       2     10002 RANK:\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
        "\"xxxxx\",\"RANK:  1     10001\r\",\"       2     10002 "
        "RANK:\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
}

TEST(PastdueFiles, AMissingRankIsListedWithTheLinesOfTheOneBefore)
{
    Session session;
    session.start(hostScreen({pastdueTitle, u"RANK:  1     10001", u"RANK:  3     10003"}));
    session.clickRow(list, "MSFlexGrid1", 1);
    EXPECT_EQ(
        session.file("plotvue.txt"),
        "\"xxxxx\",\"RANK:  1     10001\r\",\"RANK:  3     10003\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
        "\"xxxxx\",\"RANK:  1     10001\r\",\"RANK:  3     10003\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
}

TEST(PastdueFiles, AFirstRowThatIsNotFoundAgainIsARunTimeError)
{
    Session session;
    session.start(hostScreen({pastdueTitle, u"       1     10001 RANK:", u"RANK:  2     10002"}));
    session.clickRow(list, "MSFlexGrid1", 2);
    EXPECT_TRUE(failed(session, "list"));
}

TEST(PastdueFiles, TheSameNumberTwiceIsTheFirstCustomer)
{
    Session session;
    session.start(hostScreen({pastdueTitle, u"RANK:  1     10001 FIRST", u"RANK:  2     10001 SECOND"}));
    session.clickRow(list, "MSFlexGrid1", 2);
    EXPECT_EQ(session.chart(chart).titles.at(2).substr(0, 13), u"10001 - FIRST");
}

TEST(PastdueSteps, GoDownAndBackAndRewriteTheChosenRow)
{
    TwoCustomers session;
    session.open(1);
    session.press(chart, "cmdNext");
    EXPECT_EQ(session.file("plotvue1.txt"), "77\r\n");
    EXPECT_EQ(session.subject(), u"   77");
    EXPECT_EQ(session.chart(chart).series.at(0).at(5), 10);
    session.press(chart, "cmdBack");
    EXPECT_EQ(session.file("plotvue1.txt"), "10442\r\n");
    EXPECT_EQ(session.subject(), u"10442");
    EXPECT_EQ(session.events(), Events{});
}

TEST(PastdueSteps, BackFromTheFirstCustomerIsTheEndOfTheList)
{
    TwoCustomers session;
    session.open(1);
    session.press(chart, "cmdBack");
    EXPECT_EQ(session.events(), endOfList("frmPastdueA"));
    EXPECT_EQ(session.file("plotvue1.txt"), "10442\r\n");
    EXPECT_FALSE(session.loaded(chart));
    EXPECT_TRUE(session.visible(list));
}

TEST(PastdueSteps, DownFromTheLastCustomerIsTheEndOfTheList)
{
    TwoCustomers session;
    session.open(2);
    session.press(chart, "cmdNext");
    EXPECT_EQ(session.events(), endOfList("frmPastdueA"));
    EXPECT_EQ(session.file("plotvue1.txt"), "77\r\n");
    EXPECT_FALSE(session.loaded(chart));
    EXPECT_TRUE(session.visible(list));
}

TEST(PastdueSteps, CloseLeavesTheListOpen)
{
    TwoCustomers session;
    session.open(2);
    session.press(chart, "cmdExit");
    EXPECT_EQ(session.events(), (Events{"hide frmPastdueA", "unload frmPastdueA"}));
    EXPECT_TRUE(session.visible(list));
}

TEST(PastdueSteps, WalkTheWholeSample)
{
    Session session;
    session.start(sample("pastdue"));
    session.clickRow(list, "MSFlexGrid1", 1);
    for (std::size_t row = 1; row < 40; ++row) {
        session.press(chart, "cmdNext");
        EXPECT_EQ(session.file("plotvue1.txt"), toUtf8(pastdueRows(session).at(row).at(1)) + "\r\n");
    }
    for (std::size_t row = 39; row-- > 0;) {
        session.press(chart, "cmdBack");
        EXPECT_EQ(session.file("plotvue1.txt"), toUtf8(pastdueRows(session).at(row).at(1)) + "\r\n");
    }
}

TEST(PastdueSteps, TheFiveHundredthRecordIsTakenWhenNoneBeforeItIsTheOne)
{
    Session session;
    session.start(sample("pastdue"));
    session.clickRow(list, "MSFlexGrid1", 1);
    std::string records;
    for (int number = 1; number <= 502; ++number)
        records += "\"\",\"RANK:  1     " + std::to_string(20000 + number) +
                   "\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
    std::ofstream("plotvue.txt", std::ios::binary) << records;
    session.press(chart, "cmdNext");
    EXPECT_EQ(session.file("plotvue1.txt"), "20501\r\n");
}

TEST(PastdueTrouble, AnotherTitleInTheScratchFileShowsTheStartAgain)
{
    Session session;
    session.start(u"RANKED PAS\"T\"RANKED PAST\r\n"); // the scratch file reads to the first quote
    EXPECT_EQ(session.events(), listRefuses("frmPastdue"));
    EXPECT_TRUE(session.visible("startup"));
    EXPECT_FALSE(session.visible(list));
    EXPECT_EQ(session.grid(list).rows, 1);
}

TEST(PastdueTrouble, AQuoteEndsTheCapture)
{
    Session session;
    session.start(
        hostScreen({pastdueTitle, u"RANK:  1     10001", u"RANK:  2     10002 JOE\"S", u"RANK:  3"}));
    EXPECT_EQ(pastdueRows(session).size(), 1u);
}

class PastdueRank : public testing::TestWithParam<const char16_t*> {};

TEST_P(PastdueRank, OutsideOneToOneHundredIsARunTimeError)
{
    Session session;
    session.start(hostScreen({pastdueTitle, GetParam()}));
    EXPECT_TRUE(failed(session, "rank on the screen"));
    EXPECT_FALSE(session.visible(list));
}

INSTANTIATE_TEST_SUITE_P(Ranks, PastdueRank,
                         testing::Values(u"RANK:  0     10442", u"RANK:101     10442", u"RANK: -1     10442",
                                         u"RANK:         10442", u"RANK:ABC     10442",
                                         u"RANK:9E9     10442"));

TEST(PastdueTrouble, MoreRowsThanRanksIsARunTimeError)
{
    Text capture = hostScreen({pastdueTitle});
    for (int line = 1; line <= 101; ++line)
        capture += u"RANK:  1     10442\r\n";
    Session session;
    session.start(capture);
    EXPECT_TRUE(failed(session, "100"));
}

TEST(PastdueTrouble, AnAgeingLineBeforeAnyCustomerIsARunTimeError)
{
    Session session;
    session.start(hostScreen({pastdueTitle, pastdueMonths, ageing(u"OCT99", {u"1"}), northside()}));
    EXPECT_TRUE(failed(session, "rank on the screen"));
}

TEST(PastdueTrouble, FilesThatCannotBeWrittenAreARunTimeError)
{
    for (const char* file : {"plotvue.txt", "plotvue1.txt"}) {
        TwoCustomers session;
        blockFile(file);
        session.clickRow(list, "MSFlexGrid1", 1);
        EXPECT_TRUE(failed(session, file));
    }
}

TEST(PastdueTrouble, FilesThatAreGoneAreARunTimeErrorForBack)
{
    for (const char* file : {"plotvue.txt", "plotvue1.txt"}) {
        TwoCustomers session;
        session.open(2);
        std::filesystem::remove(file);
        session.press(chart, "cmdBack");
        EXPECT_TRUE(failed(session, file));
    }
}

TEST(PastdueTrouble, AListThatIsGoneIsAtItsEndForDown)
{
    TwoCustomers session;
    session.open(1);
    std::filesystem::remove("plotvue.txt");
    session.press(chart, "cmdNext");
    EXPECT_EQ(session.events(), endOfList("frmPastdueA"));
}

TEST(PastdueTrouble, AChosenRowThatIsGoneIsARunTimeErrorForDownToo)
{
    TwoCustomers session;
    session.open(1);
    std::filesystem::remove("plotvue1.txt");
    session.press(chart, "cmdNext");
    EXPECT_TRUE(failed(session, "plotvue1.txt"));
}

TEST(PastdueTrouble, ACustomerWhoIsNotInTheListFileIsARunTimeErrorForBack)
{
    TwoCustomers session;
    session.open(1);
    std::filesystem::resize_file("plotvue1.txt", 2); // "10"
    session.press(chart, "cmdBack");
    EXPECT_TRUE(failed(session, "plotvue.txt"));
}

} // namespace
} // namespace plotvue
