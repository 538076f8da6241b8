// The chart of a past-due customer: six months, a series for each age of what is owed.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

const Texts sixMonths{u"MAY99", u"JUN99", u"JUL99", u"AUG99", u"SEP99", u"OCT99"};

// Opens the chart of the first customer on a screen of these lines.
RankedSession opened(const Lines& lines)
{
    return {pastdue, hostScreen(lines), 1};
}

TEST(PastdueChart, ShowsTheClickedCustomer)
{
    RankedSession session(pastdue, twoCustomers(), 1);
    const Chart chart = session.drawn();
    const std::map<int, Text> titles{{2, u"10442 - NORTHSIDE TRUCKING             HARBOR CITY     OR"},
                                     {3, u"Accounts Receivable Analysis"}};
    EXPECT_EQ(chart.titles, titles);
    const std::vector<Numbers> series{{130, 120, 110, 100, 900, 1200},
                                      {13, 12, 11, 10, 200, 300},
                                      {4, 3, 2, 1, 0, 50},
                                      {5, 0, 0, -3, 0, 7.5}};
    EXPECT_EQ(chart.series, series);
    EXPECT_EQ(chart.labels, sixMonths);
    const std::map<int, Text> legends{
        {0, u"CURRENT "}, {1, u" 1 - 30 "}, {2, u"31 - 60 "}, {3, u"OVER 60\r"}};
    EXPECT_EQ(chart.legends, legends);
    EXPECT_EQ(chart.axisMax, 12345);
    EXPECT_FALSE(chart.axisMin);
    EXPECT_FALSE(chart.decimals);
}

TEST(PastdueChart, ShowsTheSecondCustomerToo)
{
    RankedSession session(pastdue, twoCustomers(), 2);
    const Chart chart = session.drawn();
    EXPECT_EQ(chart.titles.at(2), u"   77 - ACME                           ELK             WA");
    const std::vector<Numbers> series{{210, 170, 130, 90, 50, 10},
                                      {220, 180, 140, 100, 60, 20},
                                      {230, 190, 150, 110, 70, 30},
                                      {240, 200, 160, 120, 80, 40}};
    EXPECT_EQ(chart.series, series);
    EXPECT_EQ(chart.axisMax, 900); // May: 210 + 220 + 230 + 240
}

// Eight amounts without a gap: a border that is off by one column gives other figures.
TEST(PastdueChart, EveryFieldHasItsColumns)
{
    const auto line = [](char16_t month, char16_t tail) {
        Text text = Text(1, month) + u"CT999";
        for (char16_t column = u'1'; column <= u'8'; ++column)
            text += Text(1, column) + u"00000" + month + tail;
        return text + u"999";
    };
    RankedSession session = opened({
        pastdueTitle,
        u"Mlabel ACT99BCT99CCT99DCT99ECT99FCT99GCT99",
        u"RANK:  1987612345678901234567890123456789012345678901234567890123456789012345678",
        u"1234567abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopq",
        line(u'1', u'1'),
        line(u'2', u'3'),
        line(u'3', u'5'),
        line(u'4', u'7'),
        line(u'5', u'2'),
        line(u'6', u'4'),
    });
    const Chart chart = session.drawn();
    EXPECT_EQ(chart.titles.at(2), u"23456 - 890123456789012345678901234567 901234567890123 56");
    const std::map<int, Text> legends{{0, u"abcdefgh"}, {1, u"ijklmnop"}, {2, u"qrstuvwx"}, {3, u"yzABCDEF"},
                                      {4, u"GHIJKLMN"}, {5, u"OPQRSTUV"}, {6, u"WXYZabcd"}, {7, u"efghijkl"}};
    EXPECT_EQ(chart.legends, legends);
    EXPECT_EQ(chart.labels, (Texts{u"FCT99", u"ECT99", u"DCT99", u"CCT99", u"BCT99", u"ACT99"}));
    const std::vector<Numbers> series{{10000064, 10000052, 10000047, 10000035, 10000023, 10000011},
                                      {20000064, 20000052, 20000047, 20000035, 20000023, 20000011},
                                      {30000064, 30000052, 30000047, 30000035, 30000023, 30000011},
                                      {40000064, 40000052, 40000047, 40000035, 40000023, 40000011},
                                      {50000064, 50000052, 50000047, 50000035, 50000023, 50000011},
                                      {60000064, 60000052, 60000047, 60000035, 60000023, 60000011},
                                      {70000064, 70000052, 70000047, 70000035, 70000023, 70000011},
                                      {80000064, 80000052, 80000047, 80000035, 80000023, 80000011}};
    EXPECT_EQ(chart.series, series);
    EXPECT_EQ(chart.axisMax, 360000512); // 10000064 + 20000064 + … + 80000064
}

TEST(PastdueChart, TheAxisReachesTheAmountOfTheRankLine)
{
    Text rank = u"RANK:  1     10442";
    rank.resize(68, u' ');
    RankedSession session = opened({pastdueTitle, rank + u"9876543219", fourBuckets, u"OCT99", u"SEP99",
                                    u"AUG99", u"JUL99", u"JUN99", u"MAY99"});
    EXPECT_EQ(session.drawn().axisMax, 87654321); // of columns 70 to 77; a 9 is on either side
}

struct Captions {
    std::size_t length; // without the carriage return
    std::size_t buckets;
    double largest; // the largest sum of a month
};

class PastdueBuckets : public testing::TestWithParam<Captions> {};

// The amounts are 1, 2, 4, … 128; the first four are summed even where the captions name fewer.
TEST_P(PastdueBuckets, AreAsManyAsTheCaptionLineIsLongEnoughFor)
{
    const Text line = ageing(u"OCT99", {u"1", u"2", u"4", u"8", u"16", u"32", u"64", u"128"});
    RankedSession session = opened({pastdueTitle, pastdueMonths, u"RANK:  1     10442",
                                    Text(GetParam().length, u'-'), line, line, line, line, line, line});
    const Chart chart = session.drawn();
    ASSERT_EQ(chart.series.size(), GetParam().buckets);
    double amount = 1;
    for (const Numbers& series : chart.series) {
        EXPECT_EQ(series, Numbers(6, amount));
        amount *= 2;
    }
    EXPECT_EQ(chart.legends.size(), GetParam().buckets);
    EXPECT_EQ(chart.axisMax, GetParam().largest);
}

INSTANTIATE_TEST_SUITE_P(Lengths, PastdueBuckets,
                         testing::Values(Captions{1, 1, 15}, Captions{21, 1, 15}, Captions{22, 2, 15},
                                         Captions{29, 2, 15}, Captions{30, 3, 15}, Captions{37, 3, 15},
                                         Captions{38, 4, 15}, Captions{45, 4, 15}, Captions{46, 5, 31},
                                         Captions{53, 5, 31}, Captions{54, 6, 63}, Captions{61, 6, 63},
                                         Captions{62, 7, 127}, Captions{69, 7, 127}, Captions{70, 8, 255},
                                         Captions{80, 8, 255}));

TEST(PastdueChart, TheAxisReachesAtLeastZero)
{
    const Text line = ageing(u"OCT99", {u"-1", u"-2", u"-3", u"-4"});
    RankedSession session =
        opened({pastdueTitle, pastdueMonths, rankLine(u"1", u"10442", u"", u"", u"", u"-5.00"), fourBuckets,
                line, line, line, line, line, line});
    EXPECT_EQ(session.drawn().axisMax, 0);
    EXPECT_EQ(session.drawn().series.at(3), Numbers(6, -4));
}

TEST(PastdueChart, ARankLineThatEndsEarlyKeepsItsLineEndInTheTitle)
{
    RankedSession session = opened({pastdueTitle, pastdueMonths, u"RANK:  1     10442 ACME", fourBuckets});
    EXPECT_EQ(session.drawn().titles.at(2), u"10442 - ACME\r  ");
}

TEST(PastdueChart, ACaptureCutAfterTheRankLineShowsNothingOwed)
{
    RankedSession session = opened({pastdueTitle, pastdueMonths, u"RANK:  1     10442"});
    EXPECT_EQ(session.drawn().series, (std::vector<Numbers>{Numbers(6, 0)}));
    EXPECT_EQ(session.drawn().labels, sixMonths);
    EXPECT_EQ(session.drawn().legends.at(0), u"");
    EXPECT_EQ(session.drawn().axisMax, 0);
}

TEST(PastdueChart, ACaptureCutAmongTheMonthsShowsThoseItHas)
{
    RankedSession session =
        opened({pastdueTitle, pastdueMonths, u"RANK:  1     10442", fourBuckets,
                ageing(u"OCT99", {u"4", u"3", u"2", u"1"}), ageing(u"SEP99", {u"8", u"7", u"6", u"5"})});
    const std::vector<Numbers> series{
        {0, 0, 0, 0, 8, 4}, {0, 0, 0, 0, 7, 3}, {0, 0, 0, 0, 6, 2}, {0, 0, 0, 0, 5, 1}};
    EXPECT_EQ(session.drawn().series, series);
}

TEST(PastdueChart, WithoutMonthLabelsTheFirstIsCrosses)
{
    RankedSession session = opened({pastdueTitle, u"RANK:  1     10442"});
    EXPECT_EQ(session.drawn().labels, (Texts{u"", u"", u"", u"", u"", u"xxxxx"}));
}

TEST(PastdueChart, TheSampleIsReadAsItStands)
{
    RankedSession session(pastdue, sample("pastdue"), 3);
    const Chart chart = session.drawn();
    EXPECT_EQ(chart.titles.at(2), u"11018 - PRAIRIE WIND ELEVATOR          COLD CREEK      ID");
    const std::vector<Numbers> series{
        {5422, 7397, 8547, 6728, 8278, 5840}, {2223, 6561, 3156, 5617, 1745, 4898},
        {553, 4166, 1246, 2284, 1123, 3407},  {112, 1927, 473, 1282, 789, 1410},
        {76, 1375, 205, 863, 450, 447},       {26, 857, 72, 187, 177, 283}};
    EXPECT_EQ(chart.series, series);
    EXPECT_EQ(chart.legends.at(5), u"OVER 120");
    EXPECT_EQ(chart.axisMax, 22283); // June: 7397 + 6561 + 4166 + 1927 + 1375 + 857
}

} // namespace
} // namespace plotvue::test
