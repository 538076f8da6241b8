// Titles and legend of the chart's layout.
#include "unit/chartfixture.h"

#include <gtest/gtest.h>

namespace plotvue {

namespace {

Chart salesAndProjection()
{
    Chart chart;
    chart.decimals = 0;
    chart.titles = {{1, u"Sales"}};
    chart.series = {{40, 20}, {0, 10}};
    chart.labels = {u"A", u"B"};
    return chart;
}

const ChartDesign projecting{ChartDesign::Bars::Stacked, ChartDesign::Labels::Months, 1, {{1, u"Projected"}}};

std::string describeTitles(const Layout& layout)
{
    return lines(layout.titles,
                 [](const Title& title) { return describe(title) + (title.main ? " main" : ""); });
}

std::string describeLegend(const Layout& layout)
{
    return lines(layout.legend, [](const LegendEntry& entry) {
        return describe(entry.swatch) + " " + describe(entry.name);
    });
}

} // namespace

TEST(ChartTitles, AreBelowEachOther)
{
    Chart chart;
    chart.titles = {{1, u"Sales"}, {2, u"Product: 4711\r"}, {3, u"WH: 1"}, {4, u"nowhere"}};
    const Layout layout = laidOut(chart, {}, {224, 200});
    EXPECT_EQ(describeTitles(layout), "Sales @ 12,9 200x12\n"
                                      "Product: 4711 @ 12,22.5 200x12 main\n"
                                      "WH: 1 @ 12,36 200x12\n");
    EXPECT_EQ(layout.titles[0].role, TextRole::Small);
    EXPECT_EQ(layout.titles[1].role, TextRole::LargeTitle);
    EXPECT_EQ(layout.titles[2].role, TextRole::Body);
}

TEST(ChartTitles, LeaveNoGapIfAbsent)
{
    Chart chart;
    chart.titles = {{1, u""}, {3, u"WH: 1"}};
    EXPECT_EQ(describeTitles(laidOut(chart, {}, {224, 200})), "WH: 1 @ 12,9 200x12\n");
}

TEST(ChartTitles, AMainTitleBecomesSmallerBeforeItIsElided)
{
    Chart chart;
    chart.titles = {{2, u"Product: 4711"}}; // 104, 91 or 78 wide, depending on its text size; margins: 12
    const std::tuple<double, TextRole, const char*> expected[] = {
        {128, TextRole::LargeTitle, "Product: 4711"},  {127, TextRole::MediumTitle, "Product: 4711"},
        {115, TextRole::MediumTitle, "Product: 4711"}, {114, TextRole::BodyTitle, "Product: 4711"},
        {102, TextRole::BodyTitle, "Product: 4711"},   {101, TextRole::BodyTitle, "Product: 47~"}};
    for (const auto& [width, role, text] : expected) {
        const Layout layout = laidOut(chart, {}, {width, 200});
        EXPECT_EQ(layout.titles.at(0).role, role) << width;
        EXPECT_EQ(narrow(layout.titles.at(0).text), text) << width;
    }
    chart.titles = {{1, u"Product: 4711"}, {3, u"Product: 4711"}};
    const Layout layout = laidOut(chart, {}, {101, 200});
    EXPECT_EQ(layout.titles.at(0).role, TextRole::Small);
    EXPECT_EQ(layout.titles.at(1).role, TextRole::Body);
}

TEST(ChartTitles, KeepTheirHeightAtEverySize)
{
    struct HighTitles : SixByTwelve {
        double height(TextRole role) const override { return role == TextRole::LargeTitle ? 20 : 12; }
    };
    Chart chart;
    chart.titles = {{2, u"Product: 4711"}, {3, u"WH: 1"}};
    for (const double width : {128, 102}) {
        const Layout layout = layoutChart(PlotData(chart), {width, 200}, HighTitles(), 1);
        EXPECT_EQ(layout.titles.at(0).box.height, 20);
        EXPECT_EQ(layout.titles.at(1).box.top, 9 + 20 + 1.5);
    }
}

TEST(ChartTitles, AreElidedInsteadOfWrapped)
{
    Chart chart;
    chart.titles = {{2, u"Product: 4711"}};
    EXPECT_EQ(describeTitles(laidOut(chart, {}, {84, 200})), "Product:~ @ 12,9 60x12 main\n");
}

TEST(ChartLegend, IsBelowTheTitles)
{
    const Layout layout = laidOut(salesAndProjection(), projecting, {442, 251});
    EXPECT_EQ(describeLegend(layout), "12,30 9x9 Sales @ 27,28.5 30x12\n"
                                      "72,30 9x9 Projected @ 87,28.5 54x12\n");
    EXPECT_EQ(layout.plot.top, 62);
}

TEST(ChartLegend, WrapsAtTheRightMargin)
{
    const double wide = 72 + 15 + 54 + 12;
    EXPECT_EQ(laidOut(salesAndProjection(), projecting, {wide, 251}).legend[1].name.box.top, 28.5);
    const Layout layout = laidOut(salesAndProjection(), projecting, {wide - 1, 251});
    EXPECT_EQ(describeLegend(layout), "12,30 9x9 Sales @ 27,28.5 30x12\n"
                                      "12,45 9x9 Projected @ 27,43.5 54x12\n");
    EXPECT_EQ(layout.plot.top, 77);
}

TEST(ChartLegend, ANameIsElidedToTheWidthOfALine)
{
    // The legend is 60 wide. The coloured square takes 15 of them, and seven characters fit beside it.
    EXPECT_EQ(describeLegend(laidOut(salesAndProjection(), projecting, {84, 251})),
              "12,30 9x9 Sales @ 27,28.5 30x12\n"
              "12,45 9x9 Projec~ @ 27,43.5 42x12\n");
}

TEST(ChartLegend, IsLeftOutIfItSaysNothing)
{
    Chart chart = salesAndProjection();
    chart.series[1] = {0, 0};
    const Layout layout = laidOut(chart, projecting, {442, 251});
    EXPECT_TRUE(layout.legend.empty());
    EXPECT_EQ(layout.plot.top, 38);
}

} // namespace plotvue
