// The month-to-month drill-down: thirteen months of an entry, and the two parts of its change.
#include "profit_fixture.h"

namespace plotvue::test {
namespace {

constexpr Colour green{0, 255, 0}, red{255, 0, 0};

class MonthToMonthCharts : public testing::Test {
protected:
    Session session;

    void open(const CaptureBuilder& capture, int row = 1)
    {
        session.start(capture.text());
        session.clickRow(m2m, gainsGrid, row);
    }

    Chart components(TextSpan volume, TextSpan margin)
    {
        Session other;
        other.start(MonthToMonthScreen().add(1, u"5", volume, margin).text());
        other.clickRow(m2m, gainsGrid, 1);
        return other.chart(m2mA, "ChartFX2");
    }

    // The newest month's value for a profit, sales and volume as they stand in its columns.
    double newest(int type, TextSpan profit, TextSpan sales, TextSpan volume)
    {
        MonthToMonthScreen screen;
        screen.add(1, u"5");
        screen.put(7, 3, rightAligned(volume, 8)).put(8, 3, rightAligned(sales, 8));
        screen.put(9, 3, rightAligned(profit, 8));
        Session other;
        other.start(screen.text());
        other.clickRow(m2m, gainsGrid, 1);
        other.choose(m2mA, "optSales", type);
        return other.chart(m2mA).series.at(0).at(12);
    }
};

TEST_F(MonthToMonthCharts, ItsControls)
{
    open(MonthToMonthScreen().add(1, u"5"));
    EXPECT_EQ(session.caption(m2mA), u"PlotVue!");
    EXPECT_EQ(controlsOf(session, m2mA), (Texts{u"ChartFX1", u"ChartFX2", u"cmdBack", u"cmdExit", u"cmdNext",
                                                u"cmdPrint", u"optSales"}));
    EXPECT_EQ(session.text(m2mA, "cmdBack"), u"");
    EXPECT_EQ(session.text(m2mA, "cmdNext"), u"Down");
    EXPECT_EQ(session.text(m2mA, "cmdExit"), u"Close");
    EXPECT_EQ(session.text(m2mA, "cmdPrint"), u"&Print");
    EXPECT_EQ(captions(session.options(m2mA, "optSales")),
              (Texts{u"Sales", u"Profit", u"Volume", u"G/P %", u"Unit G/P"}));
    EXPECT_EQ(session.options(m2mA, "optSales").chosen, std::vector{0});
}

TEST_F(MonthToMonthCharts, OpensWithTheSalesOfItsRow)
{
    open(MonthToMonthScreen().add(1, u"5").add(2, u"4"), 2);
    const Chart content = session.chart(m2mA);
    EXPECT_EQ(content.series, (std::vector<Numbers>{{33, 32, 31, 30, 29, 28, 27, 26, 25, 24, 23, 22, 21}}));
    EXPECT_EQ(content.labels.front(), u"OCT98");
    EXPECT_EQ(content.labels.back(), u"OCT99");
    EXPECT_EQ(content.decimals, 0);
    EXPECT_EQ(content.titles, (std::map<int, Text>{{1, u"Sales"},
                                                   {2, u"Customer: 10002 - CUSTOMER 2" + Text(20, u' ')},
                                                   {3, u"Product: GROUP 2   "}}));
    EXPECT_TRUE(content.legends.empty());
}

TEST_F(MonthToMonthCharts, TypesHaveTheirTitleAndDecimals)
{
    open(MonthToMonthScreen().add(1, u"5").add(2, u"4"), 2);
    const std::tuple<TextSpan, int, double> expected[] = {{u"Sales", 0, 21},
                                                          {u"Profit", 0, 2021},
                                                          {u"Volume", 0, 1021},
                                                          {u"Profit%", 2, 2021.0 / 21 * 100},
                                                          {u"Unit G/P", 2, 2021.0 / 1021 * 100}};
    for (int type = 4; type >= 0; --type) {
        session.choose(m2mA, "optSales", type);
        const auto& [title, decimals, value] = expected[type];
        const Chart content = session.chart(m2mA);
        EXPECT_EQ(content.titles.at(1), title);
        EXPECT_EQ(content.decimals, decimals);
        EXPECT_EQ(content.series.at(0).at(12), value) << type;
        EXPECT_EQ(content.titles.at(2).substr(0, 15), u"Customer: 10002");
    }
}

TEST_F(MonthToMonthCharts, AStepKeepsTheType)
{
    open(MonthToMonthScreen().add(1, u"5").add(2, u"4"));
    session.choose(m2mA, "optSales", 2);
    session.press(m2mA, "cmdNext");
    EXPECT_EQ(session.chart(m2mA).titles.at(1), u"Volume");
    EXPECT_EQ(session.chart(m2mA).series.at(0).at(12), 1021);
}

TEST_F(MonthToMonthCharts, PercentagesAreProfitByTheOthers)
{
    EXPECT_EQ(newest(3, u"50", u"400", u"200"), 12.5);
    EXPECT_EQ(newest(4, u"50", u"400", u"200"), 25);
    EXPECT_EQ(newest(3, u"-50", u"400", u"200"), -12.5);
    EXPECT_EQ(newest(3, u"1", u"3", u""), 1.0 / 3 * 100);
}

TEST_F(MonthToMonthCharts, WithoutSalesOrVolumeAPercentageIsZero)
{
    EXPECT_EQ(newest(3, u"50", u"0", u"200"), 0);
    EXPECT_EQ(newest(3, u"50", u"", u"200"), 0);
    EXPECT_EQ(newest(4, u"50", u"400", u"0"), 0);
    EXPECT_EQ(newest(4, u"50", u"400", u"N/A"), 0);
}

TEST_F(MonthToMonthCharts, AFigureIsItsLeadingNumber)
{
    EXPECT_EQ(newest(0, u"", u"1,234", u""), 1);
    EXPECT_EQ(newest(0, u"", u"12.50-", u""), 12.5);
    EXPECT_EQ(newest(0, u"", u"(77)", u""), 0);
}

TEST_F(MonthToMonthCharts, MonthsBehindTheEndOfALineAreZero)
{
    CaptureBuilder screen(9);
    screen.put(1, 1, u"MONTH TO MONTH PROFIT ANALYSIS")
        .put(2, 1, u"Mlabel OCT99SEP99AU")
        .put(5, 1, u"RANK:  1     10001 SMITH")
        .put(6, 1, u"GAIN:   5.00")
        .put(8, 1, u"S      100     200");
    open(screen);
    const Chart content = session.chart(m2mA);
    EXPECT_EQ(content.series, (std::vector<Numbers>{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 200, 100}}));
    EXPECT_EQ(content.labels,
              (Texts{u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"AU\r", u"SEP99", u"OCT99"}));
    EXPECT_EQ(content.titles.at(2), u"Customer: 10001 - SMITH\r");
    EXPECT_EQ(content.titles.at(3), u"Product: ");
    session.press(m2mA, "cmdNext");
    EXPECT_EQ(session.events().back(), "unload frmM2MpftA");
}

TEST_F(MonthToMonthCharts, WithoutALabelLineThePointsHaveNoLabels)
{
    MonthToMonthScreen screen;
    screen.add(1, u"5").put(labelLine, 1, u"M-----");
    open(screen);
    EXPECT_EQ(session.chart(m2mA).labels, Texts(13));
    EXPECT_EQ(session.chart(m2mA).series[0][12], 11);
}

TEST_F(MonthToMonthCharts, TheComponentsAreTwoSeriesOfAPoint)
{
    const Chart content = components(u"820.00", u"430.00");
    EXPECT_EQ(content.series, (std::vector<Numbers>{{820}, {430}}));
    EXPECT_TRUE(content.labels.empty());
    EXPECT_EQ(content.titles, (std::map<int, Text>{{2, u"Volume/Margin components"}}));
    EXPECT_EQ(content.legends, (std::map<int, Text>{{0, u"Volume"}, {1, u"Margin"}}));
    EXPECT_FALSE(content.decimals);
}

TEST_F(MonthToMonthCharts, TheComponentsFillTheirAxis)
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

TEST_F(MonthToMonthCharts, AGainIsGreenAndAllElseRed)
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

TEST_F(MonthToMonthCharts, TheComponentsGoWithTheEntry)
{
    open(MonthToMonthScreen().add(1, u"5", u"8", u"-3").add(2, u"4", u"-2", u"6"));
    session.press(m2mA, "cmdNext");
    const Chart content = session.chart(m2mA, "ChartFX2");
    EXPECT_EQ(content.series, (std::vector<Numbers>{{-2}, {6}}));
    EXPECT_EQ(content.colours, (std::map<int, Colour>{{0, red}, {1, green}}));
    EXPECT_EQ(content.axisMin, -2);
    EXPECT_EQ(content.axisMax, 6);
}

} // namespace
} // namespace plotvue::test
