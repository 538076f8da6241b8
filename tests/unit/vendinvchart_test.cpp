// The charts of a pair of vendor and category: thirteen months, and the age of the inventory.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

RankedSession opened(TextSpan capture, int row = 1)
{
    return {vendors, capture, row};
}

TEST(VendorChart, ShowsTheSalesOfTheClickedPair)
{
    RankedSession session = opened(twoPairs());
    const Chart chart = session.drawn();
    const std::map<int, Text> titles{{1, u"Sales"},
                                     {2, u"Vendor: " + atLeft(u"CASCADE", 30)},
                                     {3, u"Category: " + atLeft(u"MOTOR OIL", 30)}};
    EXPECT_EQ(chart.titles, titles);
    EXPECT_EQ(chart.labels, oldestFirst);
    const std::vector<Numbers> series{{40, 16, 1100, 1000, 900, 800, 700, -600, 0, 400, 300, 200, 100}};
    EXPECT_EQ(chart.series, series);
    EXPECT_FALSE(chart.decimals);
}

TEST(VendorChart, ShowsTheAgeOfTheInventoryBesideIt)
{
    RankedSession session = opened(twoPairs());
    const Chart chart = session.drawn("ChartFX2");
    const std::map<int, Text> titles{{2, u"FIFO Age"}, {3, u"FIFO: $97,788"}};
    EXPECT_EQ(chart.titles, titles);
    EXPECT_EQ(chart.series, (std::vector<Numbers>{{60702, 8434, 9218, 3467, 15967}}));
    EXPECT_EQ(chart.labels, (Texts{u"<30 Days", u"31 - 60 ", u"61 - 90 ", u"91 - 120", u"Over 120"}));
    EXPECT_FALSE(chart.decimals);
}

struct DataType {
    int index;
    const char16_t* title;
    Numbers series;
};

class VendorDataType : public testing::TestWithParam<DataType> {};

TEST_P(VendorDataType, IsDrawnWhenItIsChosen)
{
    RankedSession session = opened(twoPairs());
    session.chooseType(4);
    session.chooseType(GetParam().index);
    const Chart chart = session.drawn();
    EXPECT_EQ(chart.titles.at(1), GetParam().title);
    EXPECT_EQ(chart.titles.at(2), u"Vendor: " + atLeft(u"CASCADE", 30));
    ASSERT_EQ(chart.series.size(), 1u);
    ASSERT_EQ(chart.series.at(0).size(), 13u);
    for (std::size_t point = 0; point < 13; ++point)
        EXPECT_DOUBLE_EQ(chart.series.at(0).at(point), GetParam().series.at(point)) << point;
    EXPECT_EQ(chart.labels, oldestFirst);
    EXPECT_FALSE(chart.decimals);
    EXPECT_EQ(session.drawn("ChartFX2").titles.at(3), u"FIFO: $97,788");
}

INSTANTIATE_TEST_SUITE_P(
    Types, VendorDataType,
    testing::Values(DataType{0, u"Sales", {40, 16, 1100, 1000, 900, 800, 700, -600, 0, 400, 300, 200, 100}},
                    DataType{1, u"Profit", {30, 1, 275, 250, 225, 200, 175, 150, 125, 100, 75, -50, 25}},
                    DataType{2, u"Volume", {1, 8, 0, 100, 90, 80, 70, 60, 50, 40, 30, 20, 10}},
                    DataType{3, u"Profit%", {75, 6.25, 25, 25, 25, 25, 25, -25, 0, 25, 25, -25, 25}},
                    DataType{
                        4, u"Unit G/P", {3000, 12.5, 0, 250, 250, 250, 250, 250, 250, 250, 250, -250, 250}}));

// Thirteen figures without a gap: a border that is off by one column gives other figures.
TEST(VendorChart, EveryFieldHasItsColumns)
{
    const auto line = [](char16_t mark, TextSpan tail) {
        Text text = Text(1, mark) + u"9";
        for (char16_t month = u'A'; month < u'A' + 13; ++month) {
            const int number = month - u'A' + 1;
            text += {static_cast<char16_t>(u'0' + number / 10), static_cast<char16_t>(u'0' + number % 10)};
            text += u"1000";
            text += tail;
        }
        return text + u"999";
    };
    Text capture = hostScreen({
        vendorTitle,
        u"Mlabel A0001B0002C0003D0004E0005F0006G0007H0008I0009J0010K0011L0012M0013N0014",
        u"RANK:  1       9VENDOR OF THIRTY CHARACTERS..9......9CATEGORY OF THIRTY CHARACTERS.9",
        u"F:.......................91000000220000004300000064000000850000001999",
        line(u'V', u"17"),
        line(u'S', u"25"),
        line(u'P', u"36"),
    });
    RankedSession session = opened(capture);
    EXPECT_EQ(session.drawn().titles.at(2), u"Vendor: VENDOR OF THIRTY CHARACTERS..9");
    EXPECT_EQ(session.drawn().titles.at(3), u"Category: CATEGORY OF THIRTY CHARACTERS.");
    EXPECT_EQ(session.drawn().labels,
              (Texts{u"M0013", u"L0012", u"K0011", u"J0010", u"I0009", u"H0008", u"G0007", u"F0006", u"E0005",
                     u"D0004", u"C0003", u"B0002", u"A0001"}));
    const auto figures = [](double units) {
        Numbers numbers;
        for (int month = 13; month >= 1; --month)
            numbers.push_back(month * 1000000 + 100000 + units);
        return std::vector<Numbers>{numbers};
    };
    EXPECT_EQ(session.drawn().series, figures(25));
    session.chooseType(1);
    EXPECT_EQ(session.drawn().series, figures(36));
    session.chooseType(2);
    EXPECT_EQ(session.drawn().series, figures(17));
    EXPECT_EQ(session.drawn("ChartFX2").series,
              (std::vector<Numbers>{{10000002, 20000004, 30000006, 40000008, 50000001}}));
    EXPECT_EQ(session.drawn("ChartFX2").titles.at(3), u"FIFO: $150,000,021");
}

struct Sum {
    const char16_t* line;
    const char16_t* title;
};

class VendorAges : public testing::TestWithParam<Sum> {};

TEST_P(VendorAges, AreTitledWithTheirSum)
{
    RankedSession session = opened(hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X"), GetParam().line}));
    EXPECT_EQ(session.drawn("ChartFX2").titles.at(3), GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(
    Sums, VendorAges,
    testing::Values(Sum{u"F:", u"FIFO: $"}, Sum{u"F:                             0.4", u"FIFO: $"},
                    Sum{u"F:                            -0.4", u"FIFO: $"},
                    Sum{u"F:                             0.5", u"FIFO: $1"},
                    Sum{u"F:                           -1234", u"FIFO: -$1,234"},
                    Sum{u"F:                              -1", u"FIFO: -$1"},
                    Sum{u"F:                               7", u"FIFO: $7"},
                    Sum{u"F:                             999", u"FIFO: $999"},
                    Sum{u"F:                             999       1", u"FIFO: $1,000"},
                    Sum{u"F:                          1234.4", u"FIFO: $1,234"},
                    Sum{u"F:                          1234.6", u"FIFO: $1,235"},
                    Sum{u"F:                        99999999 9999999", u"FIFO: $109,999,998"},
                    Sum{u"F:                         -123456", u"FIFO: -$123,456"}));

TEST(VendorChart, APairCutAfterItsRankLineShowsZeros)
{
    RankedSession session =
        opened(hostScreen({vendorTitle, u"Mlabel " + Text(monthLabels), vendorLine(u"1", u"A", u"X")}));
    for (int type = 0; type <= 4; ++type) {
        session.chooseType(type);
        EXPECT_EQ(session.drawn().series, std::vector<Numbers>{Numbers(13)});
    }
    EXPECT_EQ(session.drawn().labels, oldestFirst);
    EXPECT_EQ(session.drawn("ChartFX2").series, std::vector<Numbers>{Numbers(5)});
    EXPECT_FALSE(session.platform.over());
}

TEST(VendorChart, WithoutMonthLabelsThePointsHaveNone)
{
    RankedSession session = opened(hostScreen({vendorTitle, vendorLine(u"1", u"A", u"X")}));
    EXPECT_EQ(session.drawn().labels, Texts(13));
}

TEST(VendorChart, TheSampleIsReadAsItStands)
{
    RankedSession session = opened(sample("vendors"), 2);
    EXPECT_EQ(session.drawn().titles.at(2), u"Vendor: " + atLeft(u"TIDEWATER PETROLEUM", 30));
    EXPECT_EQ(session.drawn().titles.at(3), u"Category: " + atLeft(u"FILTERS", 30));
    EXPECT_EQ(session.drawn().series, (std::vector<Numbers>{{7014, 7424, 7465, 7405, 7354, 8564, 8388, 9018,
                                                             8735, 8015, 10007, 9312, 8868}}));
    EXPECT_EQ(session.drawn().labels, oldestFirst);
    EXPECT_EQ(session.drawn("ChartFX2").series, (std::vector<Numbers>{{30796, 23746, 12671, 12365, 16861}}));
    EXPECT_EQ(session.drawn("ChartFX2").titles.at(3), u"FIFO: $96,439");
    session.chooseType(2);
    EXPECT_EQ(session.newest(), 1970);
    session.chooseType(3);
    EXPECT_DOUBLE_EQ(session.newest(), 2284.0 / 8868 * 100);
}

} // namespace
} // namespace plotvue::test
