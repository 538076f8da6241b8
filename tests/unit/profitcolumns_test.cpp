// The columns of the two profit screens. Figures fill them to the edges and have other digits on both sides,
// so a column or width that is off by one gives another figure.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

constexpr TextSpan thirtyLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234";

Text entryLine(TextSpan rank)
{
    return u"RANK:" + Text(rank) + u"76543" + u"12345" + u"6" + Text(thirtyLetters) + u"5" + u"abcdefghij" +
           u"klm";
}

constexpr TextSpan partsLine = u"987654321" // 6-14: the figure, where it is read
                               u"0000"      // 15-18
                               u"123456789" // 19-27
                               u"5555"      // 28-31
                               u"234567891" // 32-40
                               u"777";

struct Analysis {
    const RankedScreen& list;
    TextSpan title, figureMark;
    double previousProfit;
};

class ProfitColumns : public testing::TestWithParam<Analysis> {
protected:
    RankedFigures read(const CaptureBuilder& capture)
    {
        text_ = capture.text();
        return readRanked(GetParam().list, text_);
    }

    CaptureBuilder screen()
    {
        CaptureBuilder capture(1);
        capture.put(1, 1, GetParam().title);
        return capture;
    }

private:
    Text text_;
};

TEST_P(ProfitColumns, OfTheEntry)
{
    CaptureBuilder capture = screen();
    const RankedFigures result = read(capture.put(2, 1, entryLine(u"012")));
    const Entry& entry = result.entry(12);
    EXPECT_EQ(entry.numbers[profit::customer], 12345);
    EXPECT_EQ(entry.texts[profit::customerName], thirtyLetters);
    EXPECT_EQ(entry.texts[profit::group], u"abcdefghij");
}

TEST_P(ProfitColumns, OfTheRank)
{
    for (const auto& [rank, value] : {std::pair{u"100", 100}, std::pair{u"5  ", 5}, std::pair{u"  7", 7}}) {
        CaptureBuilder capture = screen();
        EXPECT_EQ(read(capture.put(2, 1, entryLine(rank))).currentRank, value);
    }
}

TEST_P(ProfitColumns, OfTheFigures)
{
    CaptureBuilder capture = screen();
    capture.put(2, 1, entryLine(u"001"));
    const std::size_t figures = 6;
    capture.put(3, figures, partsLine).put(3, 1, GetParam().figureMark);
    const RankedFigures result = read(capture);
    const Entry& entry = result.entry(1);
    EXPECT_EQ(entry.numbers[profit::figure], 987654321);
    EXPECT_EQ(entry.numbers[profit::volumePart], 123456789);
    EXPECT_EQ(entry.numbers[profit::marginPart], 234567891);
}

TEST_P(ProfitColumns, OfTheLabels)
{
    CaptureBuilder capture = screen();
    capture.put(2, 1, u"Mlabel!" + Text(monthLabels) + u"NOV98");
    EXPECT_EQ(read(capture).texts[profit::monthLabels], monthLabels);
}

TEST_P(ProfitColumns, OfTheTerritorysProfits)
{
    CaptureBuilder capture = screen();
    const RankedFigures result = read(capture.put(2, 1, u"Mprofit9123456789059876543210131111"));
    EXPECT_EQ(result.numbers[profit::current], 1234567890);
    EXPECT_EQ(result.numbers[profit::previous], GetParam().previousProfit);
}

INSTANTIATE_TEST_SUITE_P(Both, ProfitColumns,
                         testing::Values(Analysis{frmM2Mpft, u"TO MONTH PROFIT AN", u"GAIN:", 98765432101},
                                         Analysis{frmProfRank, u"RANKED PROFIT AN", u"P:", 8765432101}),
                         [](const auto& tested) { return std::string(tested.param.list.window); });

// The columns of the months, in the drill-down windows: eight characters each, without a gap, with digits
// before the first and after the last.
struct DrillDown {
    Name list;
    TextSpan title, figureMark;
};

class ProfitMonths : public testing::TestWithParam<DrillDown> {
protected:
    static double month(int base, int k) { return base + k; }

    static Text months(int base)
    {
        Text line = u"99";
        for (int k = 1; k <= 13; ++k)
            line += digits(base + k);
        return line + u"7";
    }

    // Slot 0 of the chart shows month 13, slot 12 month 1.
    Chart chart(int type, Name control = "ChartFX1")
    {
        CaptureBuilder capture(1);
        capture.put(1, 1, GetParam().title)
            .put(2, 1, u"Mlabel " + Text(monthLabels))
            .put(3, 1, entryLine(u"001"))
            .put(4, 6, partsLine)
            .put(4, 1, GetParam().figureMark)
            .put(5, 1, months(12345600))
            .put(6, 1, months(23456700))
            .put(7, 1, months(34567800));
        RankedSession session(GetParam().list, capture.text(), 1);
        session.chooseType(type);
        return session.drawn(control);
    }

    Numbers expected(double (*ofMonth)(int k))
    {
        Numbers points;
        for (int k = 13; k >= 1; --k)
            points.push_back(ofMonth(k));
        return points;
    }
};

TEST_P(ProfitMonths, OfVolumeSalesAndProfit)
{
    EXPECT_EQ(chart(0).series, std::vector<Numbers>{expected([](int k) { return month(23456700, k); })});
    EXPECT_EQ(chart(1).series, std::vector<Numbers>{expected([](int k) { return month(34567800, k); })});
    EXPECT_EQ(chart(2).series, std::vector<Numbers>{expected([](int k) { return month(12345600, k); })});
}

TEST_P(ProfitMonths, OfThePercentageReadTheProfitOneCharacterWider)
{
    // The wider profit ends with one more digit: the first digit of the next profit, which is 3, or the 7
    // after the last profit.
    EXPECT_EQ(chart(3).series, std::vector<Numbers>{expected([](int k) {
                  return (month(34567800, k) * 10 + (k == 13 ? 7 : 3)) / month(23456700, k) * 100;
              })});
}

TEST_P(ProfitMonths, OfTheUnitProfitReadTheProfitAsItIs)
{
    EXPECT_EQ(chart(4).series, std::vector<Numbers>{expected(
                                   [](int k) { return month(34567800, k) / month(12345600, k) * 100; })});
}

TEST_P(ProfitMonths, HaveTheirLabels)
{
    EXPECT_EQ(chart(0).labels, oldestFirst);
}

TEST_P(ProfitMonths, TheComponentsHaveTheirColumns)
{
    EXPECT_EQ(chart(0, "ChartFX2").series, (std::vector<Numbers>{{123456789}, {234567891}}));
}

TEST_P(ProfitMonths, TheTitlesAreCutFromTheEntryAsTheyStand)
{
    const Chart content = chart(0);
    EXPECT_EQ(content.titles, (std::map<int, Text>{{1, u"Sales"},
                                                   {2, u"Customer: 12345 - " + Text(thirtyLetters)},
                                                   {3, u"Product: abcdefghij"}}));
}

INSTANTIATE_TEST_SUITE_P(Both, ProfitMonths,
                         testing::Values(DrillDown{m2m, u"TO MONTH PROFIT AN", u"GAIN:"},
                                         DrillDown{profRank, u"RANKED PROFIT AN", u"P:"}),
                         nameOfList);

} // namespace
} // namespace plotvue::test
