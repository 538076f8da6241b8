// The chart of a ratio, which shows its name and thirteen months.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

RankedSession opened(TextSpan capture, int row = 1)
{
    return {ratios, capture, row};
}

// A screen with one ratio, which has these lines.
Text oneRatio(const Lines& lines)
{
    return hostScreen({ratioTitle, u"Mlabel " + Text(monthLabels)}) + hostScreen(lines);
}

TEST(RatioChart, ShowsThirteenMonthsOfTheClickedRatio)
{
    RankedSession session = opened(twoRatios());
    const Chart chart = session.drawn();
    const std::map<int, Text> titles{{2, u"Current Ratio"}};
    EXPECT_EQ(chart.titles, titles);
    EXPECT_EQ(chart.series, (std::vector<Numbers>{{13.25, 12, 11, 10, -9, 8, 7, 6, 5, 4, 3, 2, 1.5}}));
    EXPECT_EQ(chart.labels, oldestFirst);
    EXPECT_EQ(chart.axisMax, 13.25);
    EXPECT_FALSE(chart.axisMin);
    EXPECT_FALSE(chart.decimals);
}

// Each figure fills its thirteen columns and has other digits on both sides, so a border that is off by one
// gives another figure.
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

struct RatioTexts {
    TextSpan code, name, note;
};

// The name and the note follow from the code on the second line of the ratio, not from that on the first.
void expectTexts(const RatioTexts& expected, TextSpan nameInList)
{
    SCOPED_TRACE(toUtf8(expected.code));
    RankedSession session = opened(oneRatio(
        {u"1:XXXX", Text(u"2:") + Text(expected.code) + u"    1", u"3:", u"4: ", u"5: ", u"6: STD"}));
    EXPECT_EQ(session.rows().at(0).at(0), u"XXXX");
    EXPECT_EQ(session.rows().at(0).at(1), nameInList);
    EXPECT_EQ(session.subject(), expected.name);
    session.use("cmdNote");
    EXPECT_EQ(session.events(), Events{"message Ratio Notes: " + toUtf8(expected.note)});
}

TEST(RatioChart, ARatioHasANameAndANote)
{
    const RatioTexts known[]{
        {u"CUR ", u"Current Ratio",
         u"Ratio of short-term assets to short-term liabilities.  A quick measure of solvency."},
        {u"Q   ", u"Quick Ratio",
         u"Ratio of cash and A/R to short-term liabilities. Measures cash sufficiency."},
        {u"GP  ", u"Gross Profit Percentage",
         u"Profit percentage on sales, before deducting operating costs."},
        {u"AR  ", u"Days Receivables", u"Average number of days needed to collect A/R."},
        {u"EQ% ", u"Equity Ratio",
         u"Equity divided by assets. Measures the percentage of assets actually owned."},
        {u"SEMP", u"Sales per Employee", u"Total sales divided by employee count."},
        {u"ROE ", u"Return on Equity",
         u"Ratio of net profits to equity.  Measures the return on invested capital."},
        {u"RROE", u"Rolling Return on Equity",
         u"Ratio of net profits to equity, averaged across several months.  Measures the return on invested "
         u"capital."},
        {u"INV ", u"Inventory", u"Value of all inventory."},
        {u"AIS ", u"Average Days Inventory",
         u"Average number of days to sell as much as is currently in inventory."}};
    for (const RatioTexts& ratio : known)
        expectTexts(ratio, ratio.name);
}

TEST(RatioChart, TheListDoesNotKnowTheComponentsOfFormulas)
{
    const RatioTexts components[]{{u"CASS", u"Current Assets", u"Current Assets"},
                                  {u"TASS", u"Total Assets", u"Total Assets"},
                                  {u"SLS ", u"Total Sales", u"Total Sales"},
                                  {u"CASH", u"Total Cash", u"Total Cash"},
                                  {u"CLIB", u"Current Liabilities", u"Current Liabilities"},
                                  {u"TLIB", u"Total Liabilites", u"Total Liabilites"}};
    for (const RatioTexts& component : components)
        expectTexts(component, u"Undefined Ratio");
}

TEST(RatioChart, OtherCodesAreUndefined)
{
    for (const TextSpan code : {u"TURN", u"cash", u"cur ", u" CUR", u"CUR.", u"    "})
        expectTexts({code, u"Undefined Ratio", u"No information available."}, u"Undefined Ratio");
}

TEST(RatioChart, ACodeWithoutItsBlanksIsUndefined)
{
    RankedSession session = opened(oneRatio({u"1:Q", u"2:Q", u"3:", u"4: ", u"5: ", u"6: STD"}));
    EXPECT_EQ(session.subject(), u"Undefined Ratio");
    session.use("cmdNote");
    EXPECT_EQ(session.events(), Events{"message Ratio Notes: No information available."});
}

TEST(RatioChart, TheScreensOwnNameWinsOverThatOfTheCode)
{
    const std::pair<TextSpan, TextSpan> cases[]{{u"3:  1.0  3A:Loads a Day|", u"Loads a Day"},
                                                {u"3:  1.0  3A:Loads a Day|A|B", u"Loads a Day"},
                                                {u"3:  1.0  3A:Loads a Day", u"Loads a Day"},
                                                {u"3:  1.0  3A: Loads a Day ", u" Loads a Day "},
                                                {u"3: |1.0| 3A:Loads a Day", u"Loads a Day"},
                                                {u"3: |1.0| 3A:Loads a Day|", u"Loads a Day"},
                                                {u"3:  1.0  3A:|Loads", u""},
                                                {u"3:  1.0  3A:|", u""},
                                                {u"3:  1.0  3A:", u""},
                                                {u"3:  1.0  3a:Loads a Day", u"Current Ratio"},
                                                {u"3:  1.0", u"Current Ratio"}};
    for (const auto& [line, name] : cases) {
        SCOPED_TRACE(toUtf8(line));
        RankedSession session = opened(oneRatio({u"1:CUR ", u"2:CUR ", line, u"4: ", u"5: ", u"6: STD"}));
        EXPECT_EQ(session.rows().at(0).at(1), name);
        EXPECT_EQ(session.subject(), name);
        session.use("cmdNote"); // the note still follows from the code
        EXPECT_EQ(
            session.events(),
            Events{"message Ratio Notes: Ratio of short-term assets to short-term liabilities.  A quick "
                   "measure of solvency."});
    }
}

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
