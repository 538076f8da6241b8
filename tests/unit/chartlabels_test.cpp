#include "unit/chartfixture.h"

#include <gtest/gtest.h>

namespace plotvue {

namespace {

Chart bars(std::vector<Text> labels)
{
    Chart chart;
    chart.decimals = 0;
    chart.series = {std::vector<double>(labels.size(), 40)};
    chart.labels = std::move(labels);
    return chart;
}

std::string slotsLabelled(const Layout& layout)
{
    std::string all;
    for (const SlotLabel& label : layout.labels) {
        if (!all.empty())
            all += ' ';
        all += std::to_string(label.slot);
    }
    return all;
}

} // namespace

TEST(ChartLabels, AreMadeSmallerOrBrokenBeforeTheyAreThinned)
{
    // A label is 30 wide, or 25 in TextRole::Tiny. If it is broken into two lines, it is 18 or 15 wide.
    const Chart chart = bars(std::vector<Text>(12, u"OCT98"));
    struct Expected {
        int slotWidth;
        TextRole role;
        std::size_t lines;
    };
    for (const auto& [slotWidth, role, lines] : {Expected{36, TextRole::Small, 12},
                                                 {35, TextRole::Tiny, 12},
                                                 {28, TextRole::Tiny, 12},
                                                 {27, TextRole::Small, 24},
                                                 {21, TextRole::Small, 24},
                                                 {20, TextRole::Tiny, 24},
                                                 {18, TextRole::Tiny, 24},
                                                 {17, TextRole::Small, 4}}) {
        const Layout layout = laidOut(chart, {}, {42.0 + 12 * slotWidth, 251});
        EXPECT_EQ(layout.labelRole, role) << slotWidth;
        EXPECT_EQ(layout.labels.size(), lines) << slotWidth;
    }
    const Layout tiny = laidOut(chart, {}, {42.0 + 12 * 28, 251});
    EXPECT_EQ(describe(tiny.labels[0].name), "OCT98 @ 31.5,230 25x12");
    const Layout broken = laidOut(chart, {}, {42.0 + 12 * 22, 251});
    EXPECT_EQ(describe(broken.labels[0].name), "OCT @ 32,218 18x12");
    EXPECT_EQ(describe(broken.labels[1].name), "98 @ 35,230 12x12");
    EXPECT_EQ(broken.plot.bottom(), 212) << "one line higher than with labels of one line";
}

TEST(ChartLabels, AreThinnedToEverySecondThirdFourthSixthTwelfth)
{
    const Chart chart = bars(std::vector<Text>(12, u"OCTOBR")); // 36 wide, and cannot be broken
    const std::pair<int, const char*> expected[] = {{33, "0 1 2 3 4 5 6 7 8 9 10 11"},
                                                    {32, "0 2 4 6 8 10"},
                                                    {21, "0 2 4 6 8 10"},
                                                    {20, "0 3 6 9"},
                                                    {14, "0 3 6 9"},
                                                    {13, "0 4 8"},
                                                    {11, "0 4 8"},
                                                    {10, "0 6"},
                                                    {7, "0 6"},
                                                    {6, "0"}};
    for (const auto& [slotWidth, labels] : expected)
        EXPECT_EQ(slotsLabelled(laidOut(chart, {}, {42.0 + 12 * slotWidth, 251})), labels) << slotWidth;
    EXPECT_FALSE(laidOut(chart, {}, {242, 251}).slanted);
}

TEST(ChartLabels, WithAYearEachMayHaveStepsOfMoreThanAYear)
{
    const Chart chart = bars(std::vector<Text>(25, u"OCT98"));
    EXPECT_EQ(slotsLabelled(laidOut(chart, {}, {42 + 25 * 3, 251})), "0 12 24");
    EXPECT_EQ(slotsLabelled(laidOut(chart, {}, {42 + 25 * 2, 251})), "0 24");
}

// The labels of a November, a December and the two whole years after them.
std::vector<Text> twoYears()
{
    std::vector<Text> labels{u"NOV", u"DEC"};
    for (const char16_t* january : {u"J99", u"J00"}) {
        labels.push_back(january);
        labels.insert(labels.end(), 11, u"FEB");
    }
    return labels;
}

TEST(ChartLabels, KeepEveryJanuaryAndHaveLinesBetweenTheYears)
{
    const Layout layout = laidOut(bars(twoYears()), {}, {42 + 26 * 6, 251});
    EXPECT_EQ(describeLabels(layout), "2 J99\n6 FEB weak\n10 FEB weak\n14 J00\n18 FEB weak\n22 FEB weak\n");
    EXPECT_EQ(layout.yearRules, (std::vector<double>{30 + 2 * 6, 30 + 14 * 6}));
    EXPECT_EQ(slotsLabelled(laidOut(bars(twoYears()), {}, {42 + 26 * 1, 251})), "2 14");
}

TEST(ChartLabels, BetweenJanuariesBecomeInitialsBeforeTheyAreThinned)
{
    std::string initials = "0 N weak\n1 D weak\n";
    for (const auto& [january, year] : {std::pair(2, "99"), std::pair(14, "00")}) {
        initials += std::to_string(january) + " J\n" + std::to_string(january) + " " + year + "\n";
        for (int month = january + 1; month < january + 12; ++month)
            initials += std::to_string(month) + " F weak\n";
    }
    // An initial is 6 wide, or 5 in TextRole::Tiny. The minimum gap between two is 1.2.
    for (const auto& [slotWidth, role] : {std::pair(8, TextRole::Small), std::pair(7, TextRole::Tiny)}) {
        const Layout layout = laidOut(bars(twoYears()), {}, {42.0 + 26 * slotWidth, 251});
        EXPECT_EQ(describeLabels(layout), initials) << slotWidth;
        EXPECT_EQ(layout.labelRole, role);
        EXPECT_EQ(layout.yearRules.size(), 2U);
    }
    const Layout layout = laidOut(bars(twoYears()), {}, {42 + 26 * 9, 251});
    EXPECT_EQ(layout.plot.bottom(), 212) << "one line higher than with labels of one line";
    EXPECT_EQ(describe(layout.labels[2].name), "J @ 49.5,218 6x12");
    EXPECT_EQ(describe(layout.labels[3].name), "99 @ 46.5,230 12x12");
}

TEST(ChartLabels, WithAYearInAllButOneAreNotOfWholeYears)
{
    std::vector<Text> labels(12, u"O98");
    labels[3] = u"XXX";
    const Layout layout = laidOut(bars(labels), {}, {42 + 12 * 12, 251});
    EXPECT_TRUE(layout.yearRules.empty());
    EXPECT_EQ(layout.labels.size(), 6U) << "two digits are as wide as a slot: every second label";
    EXPECT_TRUE(laidOut(bars({u"DEC", u"J99"}), {}, {442, 251}).yearRules.empty())
        << "as many with as without";
}

TEST(ChartLabels, HaveNoLineBeforeTheFirstMonth)
{
    const Layout layout = laidOut(bars({u"J98", u"FEB", u"MAR"}), {}, {442, 251});
    EXPECT_EQ(describeLabels(layout), "0 J98\n1 FEB weak\n2 MAR weak\n");
    EXPECT_TRUE(layout.yearRules.empty());
}

TEST(ChartLabels, KeepAJanuaryInTheFirstSlot)
{
    std::vector<Text> labels{u"J98"};
    labels.insert(labels.end(), 11, u"FEB");
    labels.push_back(u"J99");
    labels.insert(labels.end(), 12, u"FEB");
    labels.back() = u"J00";
    const Layout layout = laidOut(bars(labels), {}, {42 + 25 * 4, 251});
    EXPECT_EQ(describeLabels(layout), "0 J98\n6 FEB weak\n12 J99\n18 FEB weak\n24 J00\n");
    EXPECT_EQ(layout.yearRules, (std::vector<double>{30 + 12 * 4, 30 + 24 * 4}));
    EXPECT_EQ(slotsLabelled(laidOut(bars(labels), {}, {42 + 25 * 1, 251})), "0 12 24");
}

TEST(ChartLabels, HaveNoLinesBetweenYearsIfEveryLabelHasAYear)
{
    EXPECT_TRUE(laidOut(bars({u"D98", u"J99", u""}), {}, {442, 251}).yearRules.empty());
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    EXPECT_TRUE(laidOut(bars({u"SMITH", u"UNIT 7"}), names, {442, 251}).yearRules.empty());
}

TEST(ChartLabels, OfNamesAreSlantedInsteadOfThinned)
{
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    const Chart chart = bars({u"ABCDEFGHIJKLMNOP", u"B", u"C", u"D"}); // 96 wide
    EXPECT_FALSE(laidOut(chart, names, {42 + 4 * 102, 251}).slanted);

    const Layout layout = laidOut(chart, names, {42 + 4 * 100, 251});
    EXPECT_TRUE(layout.slanted);
    EXPECT_EQ(describeLabels(layout), "0 ABCDEFGHIJKL~\n1 B\n2 C\n3 D\n");
    EXPECT_EQ(layout.labels[0].name.box.right(), 30 + 50 + 3);
    EXPECT_EQ(layout.labels[0].name.box.top, layout.plot.bottom() + 6);
}

TEST(ChartLabels, IfSlantedAreThinnedBeforeTheyOverlap)
{
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    const Chart chart = bars(std::vector<Text>(6, u"ABCDEFGHIJKL"));
    // Slanted labels must be 9 apart, three quarters of a line. They are if slots are 12.7 wide.
    const std::pair<int, const char*> expected[] = {
        {13, "0 1 2 3 4 5"}, {12, "0 2 4"}, {7, "0 2 4"}, {6, "0 3"}};
    for (const auto& [slotWidth, labels] : expected) {
        const Layout layout = laidOut(chart, names, {42.0 + 6 * slotWidth, 2510});
        EXPECT_TRUE(layout.slanted);
        EXPECT_EQ(slotsLabelled(layout), labels) << slotWidth;
    }
}

TEST(ChartLabels, IfSlantedHaveTheHeightOfTheLongest)
{
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    const Size paper{42 + 4 * 50, 251}; // 242 of its height are above the bottom margin
    // The label is 60 wide, so slanted it is 42.4 high. Half a line is added for the height of its text, and
    // half a line above it.
    EXPECT_EQ(laidOut(bars({u"ABCDEFGHIJ", u"B", u"C", u"D"}), names, paper).plot.bottom(), 188);
    // The maximum height is 22 % of the paper, 55.2.
    EXPECT_EQ(laidOut(bars({u"ABCDEFGHIJKLMNOP", u"B", u"C", u"D"}), names, paper).plot.bottom(), 175);
}

TEST(ChartLabels, IfSlantedEndBeforeTheLeftEdge)
{
    const ChartDesign names{ChartDesign::Bars::Stacked, ChartDesign::Labels::Names};
    const Layout layout = laidOut(bars(std::vector<Text>(23, u"ABCDEFGHIJKL")), names, {42 + 23 * 20, 251});
    // The first label ends at x = 43 and slants by 45 degrees. With a margin of 3 pixels at the left edge, it
    // may be 40 / cos 45 degrees long: nine characters.
    EXPECT_EQ(describeLabels(layout).substr(0, 12), "0 ABCDEFGH~\n");
    EXPECT_EQ(narrow(layout.labels[22].name.text), "ABCDEFGHIJKL");
}

} // namespace plotvue
