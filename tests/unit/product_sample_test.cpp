// The product sample, every month of every period and data type. The figures stand here once more, typed
// off the screen, newest month first.
#include "support/capturebuilder.h"
#include "support/session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plotvue {
namespace {

using test::Session;
using testing::ElementsAre;

struct Month {
    TextSpan label;
    double volume, sales, profit;
};

constexpr Month months[25] = {
    {u"OCT99", 48725, 43755.05, 3118.40},   {u"SEP99", 129942, 115258.92, 9031.08},
    {u"AUG99", 111033, 93934.66, 7206.26},  {u"JUL99", 101265, 84557.38, 6106.61},
    {u"JUN99", 109133, 89927.07, 7836.19},  {u"MAY99", 128177, 108055.06, 8614.04},
    {u"APR99", 130864, 108881.07, 8192.75}, {u"MAR99", 107465, 98870.39, 6233.74},
    {u"FEB99", 90768, 82511.07, 6309.26},   {u"JAN99", 94288, 84673.95, 6120.28},
    {u"DEC98", 100348, 79981.06, 6052.08},  {u"NOV98", 109875, 86365.82, 8549.49},
    {u"OCT98", 130590, 101211.69, 9560.51}, {u"SEP98", 121950, 93174.61, 7635.50},
    {u"AUG98", 108976, 78794.83, 6322.15},  {u"JUL98", 95605, 68076.31, 6646.20},
    {u"JUN98", 104124, 83305.12, 6759.41},  {u"MAY98", 123796, 101395.21, 7466.77},
    {u"APR98", 125696, 101569.03, 9026.95}, {u"MAR98", 100072, 79764.41, 6726.93},
    {u"FEB98", 86119, 67696.93, 5393.25},   {u"JAN98", 90852, 70418.07, 5271.73},
    {u"DEC97", 95768, 73174.89, 6658.30},   {u"NOV97", 105159, 79193.24, 7458.30},
    {u"OCT97", 125728, 93299.06, 8338.41},
};

struct Type {
    TextSpan title;
    int decimals;
    double (*value)(const Month&);
    bool projected;
};

constexpr Type types[] = {
    {u"Sales", 0, [](const Month& month) { return month.sales; }, true},
    {u"Profit", 0, [](const Month& month) { return month.profit; }, true},
    {u"Volume", 0, [](const Month& month) { return month.volume; }, true},
    {u"Profit%", 2, [](const Month& month) { return month.profit / month.sales * 100; }, false},
    {u"Unit G/P", 2, [](const Month& month) { return month.profit / month.volume * 100; }, false},
};

constexpr std::size_t monthsOfPeriod[] = {13, 25, 6};

class ProductSample : public testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(ProductSample, IsChartedMonthByMonth)
{
    const auto [period, index] = GetParam();
    const Type& type = types[index];
    const std::size_t count = monthsOfPeriod[period];

    Session session;
    session.start(test::sample("product"));
    session.choose("frmProduct", "optSales", index);
    session.choose("frmProduct", "opt12", period);
    const Chart chart = session.chart("frmProduct");

    EXPECT_EQ(chart.titles, (std::map<int, Text>{{1, Text(type.title)},
                                                 {2, u"Product: 0020450001 DIESEL FUEL NO. 2 LOW SULFUR"}}));
    EXPECT_EQ(chart.decimals, type.decimals);
    ASSERT_EQ(chart.series.size(), 2u);
    ASSERT_EQ(chart.series[0].size(), count + 1);
    ASSERT_EQ(chart.series[1].size(), count + 1);
    ASSERT_EQ(chart.labels.size(), count + 1);
    for (std::size_t k = 1; k <= count; ++k) {
        const Month& month = months[k - 1];
        SCOPED_TRACE(k);
        EXPECT_EQ(chart.series[0][count - k], type.value(month));
        // 11 of October's 31 days are over.
        const double rest = k == 1 && type.projected ? type.value(month) * 20 / 11 : 0;
        EXPECT_NEAR(chart.series[1][count - k], rest, 1e-6);
        const Text label{month.label};
        EXPECT_EQ(chart.labels[count - k], count > 18 ? label.substr(0, 1) + label.substr(3) : label);
    }
    EXPECT_EQ(chart.series[0][count], 0);
    EXPECT_EQ(chart.series[1][count], 0);
    EXPECT_EQ(chart.labels[count], u"");
}

INSTANTIATE_TEST_SUITE_P(Everything, ProductSample,
                         testing::Combine(testing::Range(0, 3), testing::Range(0, 5)),
                         [](const auto& tested) {
                             return "Period" + std::to_string(std::get<0>(tested.param)) + "Type" +
                                    std::to_string(std::get<1>(tested.param));
                         });

TEST(ProductSampleFile, Is24LinesOfAtMost80Columns)
{
    const Text text = test::sample("product");
    std::size_t lines = 0, from = 0;
    for (std::size_t end; (end = text.find(u"\r\n", from)) != Text::npos; from = end + 2) {
        ++lines;
        EXPECT_LE(end - from, 80u);
        EXPECT_GT(end - from, 0u);
    }
    EXPECT_EQ(lines, 24u);
    EXPECT_EQ(from, text.size());
}

} // namespace
} // namespace plotvue
