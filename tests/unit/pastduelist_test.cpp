// The past-due list: its rows, and which lines are read into them.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

TEST(PastdueList, ShowsTheTitleLineAndARowForEveryCustomer)
{
    RankedSession session(pastdue, twoCustomers());
    EXPECT_EQ(session.header("txtHeader"), u"RANKED PAST DUE RECEIVABLES");
    EXPECT_EQ(session.grid(pastdue).format,
              u"Rank |Customer|Customer Name                                           "
              u"|City                              |ST |Total A/R |Past Due ");
    EXPECT_EQ(session.grid(pastdue).columns, 7);
    const Rows rows{{u"1", u"10442", atLeft(u"NORTHSIDE TRUCKING", 30), atLeft(u"HARBOR CITY", 15), u"OR",
                     u"1557.5", u"357.5"},
                    {u"2", u"77", atLeft(u"ACME", 30), atLeft(u"ELK", 15), u"WA", u"100", u"90"}};
    EXPECT_EQ(session.rows(), rows);
}

TEST(PastdueList, EveryFieldOfTheRankLineHasItsColumns)
{
    RankedSession session(pastdue,
                          hostScreen({
                              pastdueTitle,
                              u"RANK:  1987612345678901234567890123456789012345678901234567890123456789",
                          }));
    const Texts row{u"1", u"23456", u"890123456789012345678901234567", u"901234567890123", u"56", u"0", u"0"};
    EXPECT_EQ(session.rows().at(0), row);
}

TEST(PastdueList, AmountsAreEightColumnsFromColumnSeven)
{
    RankedSession session(pastdue, hostScreen({
                                       pastdueTitle,
                                       pastdueMonths,
                                       u"RANK:  1     10442",
                                       u"OCT999"
                                       u"10000001"
                                       u"20000003"
                                       u"30000005"
                                       u"40000007"
                                       u"50000011"
                                       u"60000013"
                                       u"70000017"
                                       u"80000019"
                                       u"9999",
                                   }));
    // All but 10000001 is past due.
    EXPECT_EQ(session.rows().at(0).at(5), u"360000076");
    EXPECT_EQ(session.rows().at(0).at(6), u"350000075");
}

struct Length {
    std::size_t characters; // of the line, its carriage return not counted
    const char16_t* total;
};

class AgeingLine : public testing::TestWithParam<Length> {};

// Every amount is a 1 in the first of its columns, so a line that ends within an amount still holds it whole.
TEST_P(AgeingLine, IsSummedAsFarAsItReaches)
{
    const Text whole = u"OCT99 1       1       1       1       1       1       1       1       1       ";
    RankedSession session(pastdue, hostScreen({pastdueTitle, pastdueMonths, u"RANK:  1     10442",
                                               TextSpan(whole).substr(0, GetParam().characters)}));
    EXPECT_EQ(session.rows().at(0).at(5), GetParam().total);
}

INSTANTIATE_TEST_SUITE_P(Lengths, AgeingLine,
                         testing::Values(Length{7, u"1"}, Length{15, u"1"}, Length{21, u"1"},
                                         Length{22, u"2"}, Length{29, u"2"}, Length{30, u"3"},
                                         Length{37, u"3"}, Length{38, u"4"}, Length{45, u"4"},
                                         Length{46, u"5"}, Length{53, u"5"}, Length{54, u"6"},
                                         Length{61, u"6"}, Length{62, u"7"}, Length{69, u"7"},
                                         Length{70, u"8"}, Length{78, u"8"}));

TEST(PastdueList, AnAgeingLineTooShortForABucketIsNotPastDue)
{
    RankedSession session(
        pastdue, hostScreen({pastdueTitle, pastdueMonths, u"RANK:  1     10442", u"OCT99     1200    300"}));
    EXPECT_EQ(session.rows().at(0).at(5), u"1200");
    EXPECT_EQ(session.rows().at(0).at(6), u"0");
}

TEST(PastdueList, WhatIsPastDueBeyondADoubleIsARunTimeError)
{
    RankedSession session(pastdue, hostScreen({pastdueTitle, pastdueMonths, u"RANK:  1     10442",
                                               ageing(u"OCT99", {u"-1.7E308", u"1.7E308", u"1.7E308"})}));
    EXPECT_EQ(session.events().back(),
              "error Line 4 of the copied text: A figure worked out from the screen is too large.");
}

TEST(PastdueList, WordsAndBlanksWhereAmountsShouldBeCountNothing)
{
    RankedSession session(pastdue,
                          hostScreen({pastdueTitle, pastdueMonths, u"RANK:  1       ABC",
                                      ageing(u"OCT99", {u"NONE", u"", u"1,234", u"-2.5-", u"5 0"})}));
    const Texts row{u"1", u"0", u"", u"", u"", u"48.5", u"48.5"};
    EXPECT_EQ(session.rows().at(0), row);
}

TEST(PastdueList, OnlyLinesWithTheCurrentMonthsLabelAreTotalled)
{
    const TextSpan first = u"RANK:  1     10442", second = u"RANK:  2     10443";
    const Text october = ageing(u"OCT99", {u"10", u"1"});
    const struct {
        const char* why;
        Text lines;
        Texts totals;
    } cases[]{{"the labels come after the first customer",
               hostScreen({first, october, pastdueMonths, second, october}),
               {u"0", u"11"}},
              {"before the labels, a line of crosses counts", hostScreen({first, u"xxxxx       8"}), {u"8"}},
              {"the lines are of other months",
               hostScreen({pastdueMonths, first, ageing(u"SEP99", {u"1"}), ageing(u"MAY99", {u"7"}),
                           ageing(u"OCT98", {u"5"})}),
               {u"0"}},
              // The second line of labels holds OCT99, so it is also an ageing line of the first customer. It
              // has no amounts.
              {"the labels of a later page take over",
               hostScreen({pastdueMonths, first, october, u"Mlabel NOV99OCT99SEP99AUG99JUL99JUN99", october,
                           second, ageing(u"NOV99", {u"20", u"2"}), october}),
               {u"0", u"22"}},
              {"labels after a customer are an ageing line",
               hostScreen({pastdueMonths, first, october, pastdueMonths}),
               {u"0"}}};
    for (const auto& [why, lines, totals] : cases) {
        RankedSession session(pastdue, hostScreen({pastdueTitle}) + lines);
        EXPECT_EQ(session.column(5), totals) << why;
    }
}

TEST(PastdueList, ALineMayBeRankAndAgeingLineAtOnce)
{
    RankedSession session(pastdue, hostScreen({
                                       pastdueTitle,
                                       pastdueMonths,
                                       u"RANK:  1     10442",
                                       ageing(u"OCT99", {u"3", u"4"}),
                                       u"RANK:  2      1200 OCT99 SALES",
                                   }));
    const Rows rows = session.rows();
    EXPECT_EQ(rows.at(0).at(5), u"7");
    EXPECT_EQ(rows.at(1).at(1), u"1200");
    // Of the rank line, columns 7 to 14 give "2", columns 15 to 22 "1200" and columns 23 to 30 "99".
    EXPECT_EQ(rows.at(1).at(5), u"1301");
    EXPECT_EQ(rows.at(1).at(6), u"1299");
}

TEST(PastdueList, RanksAreRowsWhateverTheirOrder)
{
    const TextSpan first = u"RANK:  1     10001", second = u"RANK:  2     10002",
                   third = u"RANK:  3     10003", fourth = u"RANK:  4     10004";
    const auto listed = [](const Lines& lines) {
        return RankedSession(pastdue, hostScreen({pastdueTitle}) + hostScreen(lines)).column(1);
    };
    EXPECT_EQ(listed({second, first}), (Texts{u"10001", u"10002"}));
    // The list has as many rows as there are "RANK:" lines. So if a rank is missing, the last one is not
    // listed, and if one occurs twice, a row is empty.
    EXPECT_EQ(listed({first, third, fourth}), (Texts{u"10001", u"0", u"10003"}));
    EXPECT_EQ(listed({first, u"RANK:  1     10002"}), (Texts{u"10002", u"0"}));
}

TEST(PastdueList, AMissingRankLeavesAnEmptyRow)
{
    RankedSession session(pastdue, hostScreen({pastdueTitle, u"RANK:  1     10001", u"RANK:  3     10003"}));
    EXPECT_EQ(session.rows().at(1), (Texts{u"2", u"0", u"", u"", u"", u"0", u"0"}));
}

TEST(PastdueList, TheLastTitleLineIsShown)
{
    RankedSession session(pastdue, hostScreen({u"RANKED PAST DUE, PAGE 1", u" RANKED PAST DUE, PAGE 2"}));
    EXPECT_EQ(session.header("txtHeader"), u" RANKED PAST DUE, PAGE 2");
}

TEST(PastdueList, WithoutCustomersIsEmpty)
{
    RankedSession session(pastdue, hostScreen({pastdueTitle, pastdueMonths}));
    EXPECT_TRUE(session.rows().empty());
}

} // namespace
} // namespace plotvue::test
