// Where the product window looks for the day, the product and the rows. The rows follow the dash line.
#include "capture/number.h"
#include "support/chartwindow.h"

#include <gmock/gmock.h>

namespace plotvue::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr TextSpan newestSales = u"NOV99            1000";

// A product screen with sales of 1000 in its newest month, of which a third is over, and nothing else.
CaptureBuilder product()
{
    return CaptureBuilder()
        .put(1, 1, u"QXM31H")
        .put(1, 17, u"10")
        .put(2, 1, u"PRODUCT:0020450001DIESEL")
        .put(5, 1, u"----- --------- --------- ---------")
        .put(6, 1, newestSales);
}

// A product screen with the dashes in this line, and sales in every line after it: 7 in line 7, and so on.
CaptureBuilder dashedIn(std::size_t line)
{
    CaptureBuilder capture = CaptureBuilder().put(1, 1, u"QXM31H").put(line, 1, u"-----");
    for (std::size_t row = line + 1; row <= 24; ++row)
        capture.put(row, 1, u"NOV99").put(row, 17, plainNumber(static_cast<double>(row)));
    return capture;
}

class FrmProduct : public testing::Test, public ChartWindow {
protected:
    FrmProduct() : ChartWindow("frmProduct", product()) { open(); }

    double sales(const CaptureBuilder& capture)
    {
        EXPECT_EQ(refresh(capture), Events{});
        return newest(Sales);
    }
    double toCome(const CaptureBuilder& capture)
    {
        EXPECT_EQ(refresh(capture), Events{});
        return newest(Sales, 1);
    }
    Text subject(const CaptureBuilder& capture)
    {
        EXPECT_EQ(refresh(capture), Events{});
        return title(2);
    }
};

TEST_F(FrmProduct, TheDayIs16CharactersAfterTheFirstIdentifier)
{
    screen.put(1, 1, Text(40, u' ')).put(1, 5, u"QXM31H").put(1, 17, u"30").put(1, 21, u"15");
    EXPECT_NEAR(toCome(screen.put(3, 1, u"QXM31H          10")), 1000, 1e-9);
}

TEST_F(FrmProduct, TheDayIsCountedOverTheLineEnd)
{
    // 16 characters: the identifier's six, CR, LF, and eight of line 2.
    EXPECT_NEAR(toCome(screen.replaceLine(1, u"QXM31H").replaceLine(2, u"PRODUCT:15")), 1000, 1e-9);
}

TEST_F(FrmProduct, TheIdentifierMayBeAnywhere)
{
    screen.replaceLine(1, u".").put(23, 30, u"QXM31H").put(23, 46, u"15");
    EXPECT_NEAR(toCome(screen), 1000, 1e-9);
    EXPECT_EQ(sales(screen), 1000);
}

TEST_F(FrmProduct, TheSubjectIsTheProductAndItsName)
{
    EXPECT_EQ(subject(screen.replaceLine(2, u"PRODUCT:0020450001DIESEL FUEL ")),
              u"Product: 0020450001 DIESEL FUEL ");
    EXPECT_EQ(subject(screen.replaceLine(2, u"A:1234567890B:C")), u"Product: 1234567890 B:C");
    EXPECT_EQ(subject(screen.replaceLine(2, u"1234567890DIESEL")), u"Product: 1234567890 DIESEL");
    EXPECT_EQ(subject(screen.replaceLine(2, u"PRODUCT:AB")), u"Product: AB ");
    EXPECT_EQ(subject(screen.replaceLine(2, u"PRODUCT:")), u"Product:  ");
}

TEST_F(FrmProduct, WithoutCarriageReturnsTheSubjectLosesItsLastCharacterAllTheSame)
{
    Text capture(20 * 81, u'.'); // without line ends a line has 81 characters
    capture.replace(0, 6, u"QXM31H")
        .replace(81, 81, u"PRODUCT:1234567890" + Text(62, u'A') + u"Z")
        .replace(2 * 81, 5, u"-----")
        .replace(3 * 81, 5, u"NOV99");
    EXPECT_EQ(refresh(capture), Events{});
    EXPECT_EQ(title(2), u"Product: 1234567890 " + Text(62, u'A'));
}

TEST_F(FrmProduct, AColonThatEndsTheSubjectLineIsNone)
{
    Text capture(20 * 81, u'.'); // the last of 81 characters is taken for the line's end
    capture.replace(0, 11, u"OCT99QXM31H");
    capture[2 * 81 - 1] = u':';
    EXPECT_EQ(refresh(capture), Events{});
    EXPECT_EQ(title(2), u"Product: .......... " + Text(70, u'.'));
}

TEST_F(FrmProduct, LinesMayBeEmptyOrLongOrEndInACarriageReturnAlone)
{
    refresh(sample("product"));
    const auto whole = chart(Sales, TwoYears);
    for (const Text& capture : {CaptureBuilder(TextSpan(sample("product"))).text(u"\r"),
                                sample("product").insert(sample("product").find(u"PRODUCT"), u"\r\n\r\n"),
                                sample("product").insert(sample("product").find(u"\r\n"), Text(500, u'x'))}) {
        refresh(screen);
        EXPECT_EQ(refresh(capture), Events{});
        EXPECT_EQ(chart().series, whole.series);
        EXPECT_EQ(chart().labels, whole.labels);
        EXPECT_EQ(chart().titles, whole.titles);
    }
}

TEST_F(FrmProduct, AShortRowReadsAsFarAsItGoes)
{
    refresh(screen.replaceLine(7, u"OCT99       123").replaceLine(8, u"SEP"));
    const auto content = chart(Volume);
    EXPECT_EQ(valueOf(content, 2), 123);
    EXPECT_EQ(content.labels[11], u"OCT99");
    EXPECT_EQ(valueOf(content, 3), 0);
    EXPECT_EQ(content.labels[10], u"SEP\r");
}

TEST_F(FrmProduct, RowsHangOnTheDashLine)
{
    screen.replaceLine(5, u".").replaceLine(6, u".").put(9, 28, u"-----").put(10, 1, newestSales);
    EXPECT_EQ(sales(screen), 1000);
}

TEST_F(FrmProduct, ASecondDashLineFurtherDownMovesTheRows)
{
    EXPECT_EQ(sales(screen.put(8, 1, u"-----").put(9, 1, u"DEC99            2000")), 2000);
    EXPECT_EQ(chart().labels[12], u"DEC99");
}

TEST_F(FrmProduct, WithoutADashLineRowsStartAtTheTop)
{
    CaptureBuilder capture{TextSpan(sample("product"))};
    const Text heading = capture.line(1);
    refresh(capture);
    const auto whole = chart(Sales, TwoYears);
    CaptureBuilder top;
    for (std::size_t line = 1; line <= 13; ++line)
        top.put(line, 1, capture.line(line + 5));
    refresh(top.put(22, 1, heading));
    EXPECT_EQ(chart().series, whole.series);
    EXPECT_EQ(chart().labels, whole.labels);
}

TEST_F(FrmProduct, RowsBelowLine19AreEmpty)
{
    EXPECT_EQ(refresh(dashedIn(10)), Events{});
    EXPECT_EQ(chart().series[0], (Numbers{0, 0, 0, 0, 19, 18, 17, 16, 15, 14, 13, 12, 11, 0}));
    EXPECT_THAT(chart().labels, ElementsAre(u"", u"", u"", u"", u"NOV99", u"NOV99", u"NOV99", u"NOV99",
                                            u"NOV99", u"NOV99", u"NOV99", u"NOV99", u"NOV99", u""));
    choose(Sales, HalfYear);
    EXPECT_EQ(refresh(dashedIn(17)), Events{});
    EXPECT_EQ(chart().series[0], (Numbers{0, 0, 0, 0, 19, 18, 0}));
}

TEST_F(FrmProduct, ARowBelowLine23IsARunTimeError)
{
    const std::pair<std::size_t, Period> tooLow[] = {
        {11, Year}, {11, TwoYears}, {18, HalfYear}, {19, HalfYear}, {20, HalfYear}};
    for (const auto& [line, period] : tooLow) {
        ChartWindow failing(window, screen);
        failing.open();
        failing.choose(Sales, period);
        EXPECT_THAT(failing.refresh(dashedIn(line)), ElementsAre(StartsWith("error "))) << line;
    }
}

TEST_F(FrmProduct, AnEndlessReadComesBeforeAnyOtherFailure)
{
    EXPECT_EQ(refresh(CaptureBuilder(5).put(1, 1, u"QXM31H")), Events{"spin"});
}

} // namespace
} // namespace plotvue::test
