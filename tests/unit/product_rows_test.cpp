// Where the product window looks for its subject and its rows.
#include "unit/product_fixture.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

using ProductRows = ProductTest;

TEST_F(ProductRows, TheSubjectIsTheProductAndItsName)
{
    EXPECT_EQ(subject(u"PRODUCT:0020450001DIESEL FUEL"),
              u"Product: 0020450001 DIESEL FUEL" + Text(80 - 29, u' '));
}

TEST_F(ProductRows, TheSubjectStandsBehindTheFirstColon)
{
    EXPECT_EQ(subject(u"A:1234567890B:C"), u"Product: 1234567890 B:C" + Text(80 - 15, u' '));
}

TEST_F(ProductRows, WithoutAColonTheSubjectIsTheWholeLine)
{
    EXPECT_EQ(subject(u"1234567890DIESEL"), u"Product: 1234567890 DIESEL" + Text(64, u' '));
}

TEST_F(ProductRows, AShortSubjectKeepsItsBlank)
{
    CaptureBuilder capture(24);
    capture.put(1, 1, u"QXM31H").put(5, 1, u"-----").put(6, 1, u"NOV99");
    capture.put(2, 1, u"PRODUCT:AB");
    EXPECT_EQ(chart(capture).titles.at(2), u"Product: AB ");
    CaptureBuilder none(24);
    none.put(1, 1, u"QXM31H").put(5, 1, u"-----").put(6, 1, u"NOV99").put(2, 1, u"PRODUCT:");
    EXPECT_EQ(chart(none).titles.at(2), u"Product:  ");
}

TEST_F(ProductRows, WithoutCarriageReturnsTheSubjectLosesItsLastCharacterAllTheSame)
{
    Text capture;
    for (int line = 1; line <= 20; ++line) {
        Text text(81, u'.');
        if (line == 1)
            text.replace(0, 6, u"QXM31H");
        if (line == 2)
            text = u"PRODUCT:1234567890" + Text(62, u'A') + u"Z";
        if (line == 3)
            text.replace(0, 5, u"-----");
        if (line == 4)
            text.replace(0, 5, u"NOV99");
        capture += text;
    }
    EXPECT_EQ(chart(capture).titles.at(2), u"Product: 1234567890 " + Text(62, u'A'));
}

TEST_F(ProductRows, EmptyLinesDoNotCount)
{
    Text capture = newest(u"", u"1000", u"").text();
    capture.insert(capture.find(u"PRODUCT"), u"\r\n\r\n");
    const Chart content = chart(capture);
    EXPECT_EQ(content.titles.at(2), u"Product: 0020450001 DIESEL");
    EXPECT_EQ(content.series[0][12], 1000);
}

TEST_F(ProductRows, LinesMayEndInACarriageReturnAlone)
{
    const Chart with = chart(fullScreen().text(), Sales, TwoYears);
    const Chart without = chart(fullScreen().text(u"\r"), Sales, TwoYears);
    EXPECT_EQ(with.series, without.series);
    EXPECT_EQ(with.labels, without.labels);
    EXPECT_EQ(with.titles, without.titles);
}

TEST_F(ProductRows, RowsHangOnTheDashLine)
{
    CaptureBuilder capture(24);
    capture.put(1, 1, u"QXM31H").put(9, 28, u"-----").put(10, 1, u"NOV99").put(10, 17, u"1000");
    EXPECT_EQ(value(capture), 1000);
}

TEST_F(ProductRows, ASecondDashLineFurtherDownMovesTheRows)
{
    CaptureBuilder capture = newest(u"", u"1000", u"");
    capture.put(8, 1, u"-----").put(9, left, u"DEC99").put(9, 17, u"2000");
    const Chart content = chart(capture);
    EXPECT_EQ(content.series[0][12], 2000);
    EXPECT_EQ(content.labels[12], u"DEC99");
}

TEST_F(ProductRows, WithoutADashLineRowsStartAtTheTop)
{
    CaptureBuilder capture(24);
    for (std::size_t month = 1; month <= 25; ++month)
        capture.put(month <= 13 ? month : month - 12, month <= 13 ? left : right - 1,
                    (month <= 13 ? u"" : u"7") + fullRow(labelOf(month), month));
    capture.put(22, 1, u"QXM31H").put(22, 17, u"10");
    const Chart content = chart(capture, Sales, TwoYears);
    for (std::size_t month = 1; month <= 25; ++month)
        EXPECT_EQ(content.series[0][25 - month], 222000000 + 2 * month) << month;
    EXPECT_NEAR(content.series[1][24], 444000004, 1e-3);
}

// Every line but the first holds figures that may only be charted where the rows say so.
CaptureBuilder dashedIn(std::size_t line)
{
    CaptureBuilder capture(24);
    capture.put(1, 1, u"QXM31H").put(line, 1, u"-----");
    for (std::size_t row = line + 1; row <= 24; ++row)
        capture.put(row, left, u"NOV99").put(row, 17, number(row));
    return capture;
}

TEST_F(ProductRows, RowsBelowLine19AreEmpty)
{
    const Chart content = chart(dashedIn(10));
    EXPECT_THAT(content.series[0], ElementsAre(0, 0, 0, 0, 19, 18, 17, 16, 15, 14, 13, 12, 11, 0));
    EXPECT_THAT(content.labels, ElementsAre(u"", u"", u"", u"", u"NOV99", u"NOV99", u"NOV99", u"NOV99",
                                            u"NOV99", u"NOV99", u"NOV99", u"NOV99", u"NOV99", u""));
    EXPECT_THAT(chart(dashedIn(17), Sales, HalfYear).series[0], ElementsAre(0, 0, 0, 0, 19, 18, 0));
    EXPECT_FALSE(session.platform.over());
}

TEST_F(ProductRows, ARowBelowLine23IsARunTimeError)
{
    const std::pair<std::size_t, Period> tooLow[] = {
        {11, Year}, {11, TwoYears}, {18, HalfYear}, {19, HalfYear}, {20, HalfYear}};
    for (const auto& [line, period] : tooLow) {
        Session broken;
        broken.start(screen().text());
        broken.choose("frmProduct", "opt12", period);
        broken.events();
        broken.copy(dashedIn(line).text());
        broken.press("frmProduct", "cmdRefresh");
        EXPECT_THAT(broken.events(), ElementsAre(StartsWith("error "))) << line;
    }
}

TEST_F(ProductRows, ACaptureWithNothingBehindLine19IsReadWithoutEnd)
{
    CaptureBuilder capture(19);
    capture.put(1, 1, u"QXM31H").put(5, 1, u"-----").put(6, 1, u"NOV99");
    chart(capture);
    EXPECT_THAT(session.events(), ElementsAre("spin"));
}

TEST_F(ProductRows, TheEndlessReadComesBeforeAnyOtherFailure)
{
    chart(CaptureBuilder(5).put(1, 1, u"QXM31H").text());
    EXPECT_THAT(session.events(), ElementsAre("spin"));
}

TEST_F(ProductRows, ALongLineIsOneLine)
{
    Text capture = newest(u"", u"1000", u"").text();
    capture.insert(capture.find(u"\r\n"), Text(500, u'x'));
    EXPECT_EQ(chart(capture).series[0][12], 1000);
}

} // namespace
} // namespace plotvue::test
