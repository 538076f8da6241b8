// The month-to-month drill-down: thirteen months of an entry, and the two parts of its change.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

constexpr Colour green{0, 255, 0}, red{255, 0, 0};

RankedSession opened(const CaptureBuilder& capture, int row = 1)
{
    return {m2m, capture.text(), row};
}

Chart components(TextSpan volume, TextSpan margin)
{
    return opened(MonthToMonthScreen().add(1, u"5", volume, margin)).drawn("ChartFX2");
}

// The value that the chart shows for the newest month, when its columns hold these texts.
double newest(int type, TextSpan profit, TextSpan sales, TextSpan volume)
{
    MonthToMonthScreen screen;
    screen.add(1, u"5");
    screen.put(7, 3, atRight(volume, 8)).put(8, 3, atRight(sales, 8)).put(9, 3, atRight(profit, 8));
    RankedSession session = opened(screen);
    session.chooseType(type);
    return session.newest();
}

TEST(MonthToMonthCharts, OpensWithTheSalesOfItsRow)
{
    RankedSession session = opened(MonthToMonthScreen().add(1, u"5").add(2, u"4"), 2);
    const Chart content = session.drawn();
    EXPECT_EQ(content.series, (std::vector<Numbers>{{33, 32, 31, 30, 29, 28, 27, 26, 25, 24, 23, 22, 21}}));
    EXPECT_EQ(content.labels.front(), u"OCT98");
    EXPECT_EQ(content.labels.back(), u"OCT99");
    EXPECT_EQ(content.decimals, 0);
    EXPECT_EQ(content.titles, (std::map<int, Text>{{1, u"Sales"},
                                                   {2, u"Customer: 10002 - CUSTOMER 2" + Text(20, u' ')},
                                                   {3, u"Product: GROUP 2   "}}));
    EXPECT_TRUE(content.legends.empty());
}

TEST(MonthToMonthCharts, TypesHaveTheirTitleAndDecimals)
{
    RankedSession session = opened(MonthToMonthScreen().add(1, u"5").add(2, u"4"), 2);
    const std::tuple<TextSpan, int, double> expected[] = {{u"Sales", 0, 21},
                                                          {u"Profit", 0, 2021},
                                                          {u"Volume", 0, 1021},
                                                          {u"Profit%", 2, 2021.0 / 21 * 100},
                                                          {u"Unit G/P", 2, 2021.0 / 1021 * 100}};
    for (int type = 4; type >= 0; --type) {
        session.chooseType(type);
        const auto& [title, decimals, value] = expected[type];
        const Chart content = session.drawn();
        EXPECT_EQ(content.titles.at(1), title);
        EXPECT_EQ(content.decimals, decimals);
        EXPECT_EQ(content.series.at(0).at(12), value) << type;
        EXPECT_EQ(content.titles.at(2).substr(0, 15), u"Customer: 10002");
    }
}

TEST(MonthToMonthCharts, PercentagesAreProfitByTheOthers)
{
    EXPECT_EQ(newest(3, u"50", u"400", u"200"), 12.5);
    EXPECT_EQ(newest(4, u"50", u"400", u"200"), 25);
    EXPECT_EQ(newest(3, u"-50", u"400", u"200"), -12.5);
    EXPECT_EQ(newest(3, u"1", u"3", u""), 1.0 / 3 * 100);
}

TEST(MonthToMonthCharts, WithoutSalesOrVolumeAPercentageIsZero)
{
    EXPECT_EQ(newest(3, u"50", u"0", u"200"), 0);
    EXPECT_EQ(newest(3, u"50", u"", u"200"), 0);
    EXPECT_EQ(newest(4, u"50", u"400", u"0"), 0);
    EXPECT_EQ(newest(4, u"50", u"400", u"N/A"), 0);
}

TEST(MonthToMonthCharts, AFigureIsItsLeadingNumber)
{
    EXPECT_EQ(newest(0, u"", u"1,234", u""), 1);
    EXPECT_EQ(newest(0, u"", u"12.50-", u""), 12.5);
    EXPECT_EQ(newest(0, u"", u"(77)", u""), 0);
}

TEST(MonthToMonthCharts, MonthsAfterTheEndOfALineAreZero)
{
    CaptureBuilder screen(9);
    screen.put(1, 1, u"MONTH TO MONTH PROFIT ANALYSIS")
        .put(2, 1, u"Mlabel OCT99SEP99AU")
        .put(5, 1, u"RANK:  1     10001 SMITH")
        .put(6, 1, u"GAIN:   5.00")
        .put(8, 1, u"S      100     200");
    RankedSession session = opened(screen);
    const Chart content = session.drawn();
    EXPECT_EQ(content.series, (std::vector<Numbers>{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 200, 100}}));
    EXPECT_EQ(content.labels,
              (Texts{u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"AU\r", u"SEP99", u"OCT99"}));
    EXPECT_EQ(content.titles.at(2), u"Customer: 10001 - SMITH\r");
    EXPECT_EQ(content.titles.at(3), u"Product: ");
    session.down();
    EXPECT_EQ(session.events().back(), "unload frmM2MpftA");
}

TEST(MonthToMonthCharts, WithoutALabelLineThePointsHaveNoLabels)
{
    MonthToMonthScreen screen;
    screen.add(1, u"5").put(labelLine, 1, u"M-----");
    RankedSession session = opened(screen);
    EXPECT_EQ(session.drawn().labels, Texts(13));
    EXPECT_EQ(session.newest(), 11);
}

TEST(MonthToMonthCharts, TheComponentsAreTwoSeriesOfAPoint)
{
    const Chart content = components(u"820.00", u"430.00");
    EXPECT_EQ(content.series, (std::vector<Numbers>{{820}, {430}}));
    EXPECT_TRUE(content.labels.empty());
    EXPECT_EQ(content.titles, (std::map<int, Text>{{2, u"Volume/Margin components"}}));
    EXPECT_EQ(content.legends, (std::map<int, Text>{{0, u"Volume"}, {1, u"Margin"}}));
    EXPECT_FALSE(content.decimals);
}

TEST(MonthToMonthCharts, TheComponentsFillTheirAxis)
{
    struct {
        TextSpan volume, margin;
        double smallest, largest;
    } const cases[] = {{u"820", u"430", 0, 820},
                       {u"430", u"820", 0, 820},
                       {u"-820", u"430", -820, 430},
                       {u"430", u"-820", -820, 430},
                       {u"-5", u"-7.5", -7.5, 0},
                       {u"-7.5", u"-5", -7.5, 0},
                       {u"0", u"0", 0, 0}};
    for (const auto& [volume, margin, smallest, largest] : cases) {
        const Chart content = components(volume, margin);
        EXPECT_EQ(content.axisMin, smallest) << toUtf8(volume);
        EXPECT_EQ(content.axisMax, largest) << toUtf8(volume);
    }
}

TEST(MonthToMonthCharts, AGainIsGreenAndAllElseRed)
{
    struct {
        TextSpan volume, margin;
        Colour first, second;
    } const cases[] = {{u"0.01", u"0.01", green, green},
                       {u"0", u"5", red, green},
                       {u"5", u"0", green, red},
                       {u"-5", u"-5", red, red},
                       {u"", u"", red, red}};
    for (const auto& [volume, margin, first, second] : cases)
        EXPECT_EQ(components(volume, margin).colours, (std::map<int, Colour>{{0, first}, {1, second}}))
            << toUtf8(volume) << "/" << toUtf8(margin);
}

TEST(MonthToMonthCharts, TheComponentsGoWithTheEntry)
{
    RankedSession session = opened(MonthToMonthScreen().add(1, u"5", u"8", u"-3").add(2, u"4", u"-2", u"6"));
    session.down();
    const Chart content = session.drawn("ChartFX2");
    EXPECT_EQ(content.series, (std::vector<Numbers>{{-2}, {6}}));
    EXPECT_EQ(content.colours, (std::map<int, Colour>{{0, red}, {1, green}}));
    EXPECT_EQ(content.axisMin, -2);
    EXPECT_EQ(content.axisMax, 6);
}

} // namespace
} // namespace plotvue::test
