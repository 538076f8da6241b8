// The chart of a ratio: thirteen months, and its name.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

RankedSession opened(TextSpan capture, int row = 1)
{
    return {ratios, capture, row};
}

// One ratio with these lines.
Text oneRatio(const Lines& lines)
{
    return hostScreen({ratioTitle, u"Mlabel " + Text(monthLabels)}) + hostScreen(lines);
}

TEST(RatioChart, ShowsThirteenMonthsOfTheClickedRatio)
{
    RankedSession session = opened(twoRatios());
    const ChartContent chart = session.drawn();
    const std::map<int, Text> titles{{2, u"Current Ratio"}};
    EXPECT_EQ(chart.titles, titles);
    EXPECT_EQ(chart.series, (std::vector<Numbers>{{13.25, 12, 11, 10, -9, 8, 7, 6, 5, 4, 3, 2, 1.5}}));
    EXPECT_EQ(chart.labels, oldestFirst);
    EXPECT_EQ(chart.axisMax, 13.25);
    EXPECT_FALSE(chart.axisMin);
    EXPECT_FALSE(chart.decimals);
}

// Figures of thirteen columns with other digits on both sides.
TEST(RatioChart, EveryFieldHasItsColumns)
{
    RankedSession session = opened(hostScreen({
        ratioTitle,
        u"Mlabel A0001B0002C0003D0004E0005F0006G0007H0008I0009J0010K0011L0012M0013N0014",
        u"1:CUR "
        u"991000000000001910000000000029100000000000391000000000004910000000000059100000000000691000000000007"
        u"99",
        u"2:CUR 991000000000008910000000000099100000000001091000000000011910000000000129100000000001399",
        u"3:6543210987654999",
        u"4:",
        u"5:",
        u"6:",
    }));
    Numbers figures;
    for (int month = 13; month >= 1; --month)
        figures.push_back(1000000000000.0 + month);
    EXPECT_EQ(session.drawn().series, std::vector<Numbers>{figures});
    EXPECT_EQ(session.drawn().labels,
              (Texts{u"M0013", u"L0012", u"K0011", u"J0010", u"I0009", u"H0008", u"G0007", u"F0006", u"E0005",
                     u"D0004", u"C0003", u"B0002", u"A0001"}));
    EXPECT_EQ(session.drawn().axisMax, 6543210987654); // columns 3 to 15 of the "3:" line
}

TEST(RatioChart, TheAxisReachesTheLargestOfMonthsAndBenchmark)
{
    struct {
        const char16_t* newest;
        const char16_t* benchmark;
        double largest;
    } const cases[] = {{u"5", u"4", 5}, {u"5", u"6.5", 6.5}, {u"-5", u"-4", 0}, {u"-5", u"", 0}};
    for (const auto& tested : cases) {
        RankedSession session =
            opened(oneRatio({ratioLine(u"1:", u"CUR ", {tested.newest}), u"2:CUR ",
                             benchmarkLine(tested.benchmark, u"99", u"99"), u"4: ", u"5: ", u"6: "}));
        EXPECT_EQ(session.drawn().axisMax, tested.largest);
    }
}

TEST(RatioChart, TheAxisReachesAtLeastZero)
{
    RankedSession session = opened(
        oneRatio({ratioLine(u"1:", u"CUR ", Lines(7, u"-2")), ratioLine(u"2:", u"CUR ", Lines(6, u"-3")),
                  benchmarkLine(u"-1", u"", u""), u"4: ", u"5: ", u"6: "}));
    EXPECT_EQ(session.drawn().axisMax, 0);
}

TEST(RatioChart, BlankFiguresAreZero)
{
    RankedSession session = opened(oneRatio({u"1:CUR ", u"2:CUR ", u"3:", u"4: ", u"5: ", u"6: "}));
    EXPECT_EQ(session.drawn().series, std::vector<Numbers>{Numbers(13)});
    EXPECT_EQ(session.drawn().axisMax, 0);
}

struct Named {
    const char16_t* code;
    const char16_t* name;
    const char16_t* note;
};

class RatioKnown : public testing::TestWithParam<Named> {};

// The code of the second line counts, not that of the first.
TEST_P(RatioKnown, HasANameAndANote)
{
    RankedSession session = opened(
        oneRatio({u"1:XXXX", Text(u"2:") + GetParam().code + u"    1", u"3:", u"4: ", u"5: ", u"6: STD"}));
    EXPECT_EQ(session.subject(), GetParam().name);
    std::vector<std::pair<Text, Text>> messages;
    session.platform.listener = [&](const Event& event) { messages.emplace_back(event.title, event.text); };
    session.use("cmdNote");
    EXPECT_EQ(messages, (std::vector<std::pair<Text, Text>>{{u"Ratio Notes", GetParam().note}}));
}

INSTANTIATE_TEST_SUITE_P(
    Ratios, RatioKnown,
    testing::Values(
        Named{u"CUR ", u"Current Ratio",
              u"Ratio of short-term assets to short-term liabilities.  A quick measure of solvency."},
        Named{u"Q   ", u"Quick Ratio",
              u"Ratio of cash and A/R to short-term liabilities. Measures cash sufficiency."},
        Named{u"GP  ", u"Gross Profit Percentage",
              u"Profit percentage on sales, before deducting operating costs."},
        Named{u"AR  ", u"Days Receivables", u"Average number of days needed to collect A/R."},
        Named{u"EQ% ", u"Equity Ratio",
              u"Equity divided by assets. Measures the percentage of assets actually owned."},
        Named{u"SEMP", u"Sales per Employee", u"Total sales divided by employee count."},
        Named{u"ROE ", u"Return on Equity",
              u"Ratio of net profits to equity.  Measures the return on invested capital."},
        Named{u"RROE", u"Rolling Return on Equity",
              u"Ratio of net profits to equity, averaged across several months.  Measures the return on "
              u"invested "
              u"capital."},
        Named{u"INV ", u"Inventory", u"Value of all inventory."},
        Named{u"AIS ", u"Average Days Inventory",
              u"Average number of days to sell as much as is currently in inventory."}));

INSTANTIATE_TEST_SUITE_P(Components, RatioKnown,
                         testing::Values(Named{u"CASS", u"Current Assets", u"Current Assets"},
                                         Named{u"TASS", u"Total Assets", u"Total Assets"},
                                         Named{u"SLS ", u"Total Sales", u"Total Sales"},
                                         Named{u"CASH", u"Total Cash", u"Total Cash"},
                                         Named{u"CLIB", u"Current Liabilities", u"Current Liabilities"},
                                         Named{u"TLIB", u"Total Liabilites", u"Total Liabilites"}));

constexpr const char16_t* undefined = u"Undefined Ratio";
constexpr const char16_t* noNote = u"No information available.";

INSTANTIATE_TEST_SUITE_P(Others, RatioKnown,
                         testing::Values(Named{u"TURN", undefined, noNote}, Named{u"cash", undefined, noNote},
                                         Named{u"    ", undefined, noNote}));

TEST(RatioChart, ACodeWithoutItsBlanksIsUndefined)
{
    RankedSession session = opened(oneRatio({u"1:Q", u"2:Q", u"3:", u"4: ", u"5: ", u"6: STD"}));
    EXPECT_EQ(session.subject(), u"Undefined Ratio");
    session.use("cmdNote");
    EXPECT_EQ(session.events(), Events{"message Ratio Notes: No information available."});
}

struct Own {
    const char16_t* line;
    const char16_t* name;
};

class RatioTitle : public testing::TestWithParam<Own> {};

TEST_P(RatioTitle, IsTheScreensOwnNameWhereItHasOne)
{
    RankedSession session =
        opened(oneRatio({u"1:CUR ", u"2:CUR ", GetParam().line, u"4: ", u"5: ", u"6: STD"}));
    EXPECT_EQ(session.subject(), GetParam().name);
    session.use("cmdNote"); // which is looked up by the code all the same
    EXPECT_EQ(session.events(),
              Events{"message Ratio Notes: Ratio of short-term assets to short-term liabilities. "
                     " A quick measure of solvency."});
}

INSTANTIATE_TEST_SUITE_P(Lines, RatioTitle,
                         testing::Values(Own{u"3:  1.0  3A:Loads a Day|", u"Loads a Day"},
                                         Own{u"3:  1.0  3A:Loads a Day|A|B", u"Loads a Day"},
                                         Own{u"3:  1.0  3A:Loads a Day", u"Loads a Day"},
                                         Own{u"3: |1.0| 3A:Loads a Day|", u"Loads a Day"},
                                         Own{u"3:  1.0  3A:|", u""}, Own{u"3:  1.0", u"Current Ratio"}));

TEST(RatioChart, WithoutMonthLabelsThePointsHaveNone)
{
    RankedSession session =
        opened(hostScreen({ratioTitle, u"1:CUR ", u"2:CUR ", u"3:", u"4: ", u"5: ", u"6: "}));
    EXPECT_EQ(session.drawn().labels, Texts(13));
}

TEST(RatioChart, TheSampleIsReadAsItStands)
{
    RankedSession session = opened(sample("ratios"), 9);
    EXPECT_EQ(session.subject(), u"Inventory");
    EXPECT_EQ(session.drawn().series,
              (std::vector<Numbers>{{1167669, 1194963, 1246651, 1231229, 1282783, 1281877, 1194421, 1220306,
                                     1273458, 1268572, 1225894, 1315452, 1248493}}));
    EXPECT_EQ(session.drawn().labels, oldestFirst);
    EXPECT_EQ(session.drawn().axisMax, 1315452);
}

} // namespace
} // namespace plotvue::test
