#include "capture/failure.h"
#include "capture/lines.h"
#include "support/capturebuilder.h"

#include <gtest/gtest.h>

namespace plotvue {
namespace {

using test::CaptureBuilder;

// 24 lines "L1", "L2", …
CaptureBuilder numbered(std::size_t count = 24)
{
    CaptureBuilder capture(count);
    for (std::size_t line = 1; line <= count; ++line) {
        const std::string digits = std::to_string(line);
        capture.put(line, 1, u"L" + Text(digits.begin(), digits.end()));
    }
    return capture;
}

int dashLineOf(const CaptureBuilder& capture)
{
    const Text text = capture.text();
    return ScreenLines(text).dashLine();
}

TEST(ScreenLines, TheFirst19LinesAreReadWithTheirCarriageReturn)
{
    const Text text = numbered().text();
    const ScreenLines lines(text);
    EXPECT_EQ(lines[1], u"L1\r");
    EXPECT_EQ(lines[2], u"L2\r");
    EXPECT_EQ(lines[18], u"L18\r");
    EXPECT_EQ(lines[19], u"L19\r");
    EXPECT_EQ(lines[20], u"");
    EXPECT_NO_THROW(lines.requireAll());
}

TEST(ScreenLines, Lines20To23AreEmpty)
{
    const Text text = numbered().text();
    const ScreenLines lines(text);
    for (int line = 20; line <= 23; ++line)
        EXPECT_EQ(lines[line], u"") << line;
}

TEST(ScreenLines, OtherLinesAreARunTimeError)
{
    const Text text = numbered().text();
    const ScreenLines lines(text);
    EXPECT_THROW(lines[24], Failure);
    EXPECT_THROW(lines[100], Failure);
    EXPECT_THROW(lines[0], Failure);
    EXPECT_THROW(lines[-1], Failure);
}

TEST(ScreenLines, ACarriageReturnAloneEndsALineJustSo)
{
    const Text text = numbered().put(5, 1, u"-----").text(u"\r");
    const ScreenLines lines(text);
    EXPECT_EQ(lines[1], u"L1\r");
    EXPECT_EQ(lines[19], u"L19\r");
    EXPECT_EQ(lines.dashLine(), 5);
}

TEST(ScreenLines, ALineFeedAloneEndsNoLine)
{
    Text text = u"A\nB\r\n" + numbered().text();
    const ScreenLines lines(text);
    EXPECT_EQ(lines[1], u"A\nB\r");
    EXPECT_EQ(lines[2], u"L1\r");
}

TEST(ScreenLines, EmptyLinesVanish)
{
    const Text text = u"A\r\n\r\n\r\nB\r\n\r\n" + numbered().text();
    const ScreenLines lines(text);
    EXPECT_EQ(lines[1], u"A\r");
    EXPECT_EQ(lines[2], u"B\r");
    EXPECT_EQ(lines[3], u"L1\r");
}

TEST(ScreenLines, AnEmptyFirstLineStays)
{
    const Text text = u"\r\n" + numbered().text();
    const ScreenLines lines(text);
    EXPECT_EQ(lines[1], u"\r");
    EXPECT_EQ(lines[2], u"L1\r");
}

TEST(ScreenLines, ControlCharactersInFrontOfALineAreDropped)
{
    const Text text = u"A\r\n\t\v\f\x01" + Text(1, u'\0') + u"B\r\n" + numbered().text();
    const ScreenLines lines(text);
    EXPECT_EQ(lines[2], u"B\r");
}

TEST(ScreenLines, CharactersAboveTheCarriageReturnStay)
{
    const Text text = u"A\r\n\x0E"
                      u"B\r\n" +
                      numbered().text();
    EXPECT_EQ(ScreenLines(text)[2], u"\x0E"
                                    u"B\r");
}

TEST(ScreenLines, BlanksAreNeverDropped)
{
    const Text text = u"A\r\n   \r\n  B\r\n" + numbered().text();
    const ScreenLines lines(text);
    EXPECT_EQ(lines[2], u"   \r");
    EXPECT_EQ(lines[3], u"  B\r");
}

TEST(ScreenLines, ControlCharactersInsideALineStay)
{
    const Text text = u"A\tB\x01\r\n" + numbered().text();
    EXPECT_EQ(ScreenLines(text)[1], u"A\tB\x01\r");
}

TEST(ScreenLines, WithoutACarriageReturnALineIs81Characters)
{
    const Text text = numbered(18).text() + Text(81, u'a') + Text(81, u'b');
    const ScreenLines lines(text);
    EXPECT_EQ(lines[18], u"L18\r");
    EXPECT_EQ(lines[19], Text(81, u'a'));
    EXPECT_NO_THROW(lines.requireAll());
}

TEST(ScreenLines, WithoutAnyCarriageReturnEvery81CharactersAreALine)
{
    Text text;
    for (char16_t c = u'a'; c <= u't'; ++c)
        text += Text(81, c);
    const ScreenLines lines(text);
    EXPECT_EQ(lines[1], Text(81, u'a'));
    EXPECT_EQ(lines[19], Text(81, u's'));
    EXPECT_EQ(lines[20], u"");
}

TEST(ScreenLines, ALongLineIsCutAtTheNextCarriageReturnHoweverFar)
{
    const Text text = Text(5000, u'a') + u"\r\n" + numbered().text();
    const ScreenLines lines(text);
    EXPECT_EQ(lines[1], Text(5000, u'a') + u"\r");
    EXPECT_EQ(lines[2], u"L1\r");
}

TEST(ScreenLines, FewerThan19LinesNeverEnd)
{
    for (std::size_t count : {1u, 2u, 18u}) {
        const Text text = numbered(count).text();
        const ScreenLines lines(text);
        EXPECT_THROW(lines.requireAll(), TooFewLines) << count;
        EXPECT_EQ(lines[1], u"L1\r");
    }
}

TEST(ScreenLines, NothingAtAllNeverEnds)
{
    EXPECT_THROW(ScreenLines(u"").requireAll(), TooFewLines);
}

TEST(ScreenLines, NothingAfterLine19NeverEndsEither)
{
    const Text lines19 = numbered(19).text();
    EXPECT_THROW(ScreenLines(lines19).requireAll(), TooFewLines);
    const Text blankLines = lines19 + u"\r\n\r\n";
    EXPECT_THROW(ScreenLines(blankLines).requireAll(), TooFewLines);
    const Text oneMore = lines19 + u" ";
    EXPECT_NO_THROW(ScreenLines(oneMore).requireAll());
}

TEST(ScreenLines, ALastLineWithoutItsEndIsNotEnoughEither)
{
    Text text = numbered(19).text();
    text.resize(text.size() - 2);
    EXPECT_THROW(ScreenLines(text).requireAll(), TooFewLines);
}

int linesBeforeTheEnd(const Text& text)
{
    try {
        ScreenLines(text).requireAll();
    } catch (const TooFewLines& read) {
        return read.lines;
    }
    return -1;
}

TEST(ScreenLines, ThatNeverEndSayHowManyLinesAreNotEmpty)
{
    EXPECT_EQ(linesBeforeTheEnd(numbered(1).text()), 1);
    EXPECT_EQ(linesBeforeTheEnd(numbered(18).text()), 18);
    EXPECT_EQ(linesBeforeTheEnd(numbered(19).text()), 19);
    EXPECT_EQ(linesBeforeTheEnd(u""), 0);
    EXPECT_EQ(linesBeforeTheEnd(u"\r\n\r\n"), 0);
    EXPECT_EQ(linesBeforeTheEnd(u"\r\nA\r\n\r\n \r\nB"), 3) << "a line of blanks is not empty";
    EXPECT_EQ(linesBeforeTheEnd(Text(1000, u'A')), 1) << "cut into pieces of 81 characters";
    EXPECT_EQ(linesBeforeTheEnd(u"A\r\n" + Text(1000, u'A')), 2);
}

TEST(DashLine, IsTheLineThatHoldsFiveDashes)
{
    EXPECT_EQ(dashLineOf(numbered().put(6, 1, u"----- ---------")), 6);
    EXPECT_EQ(dashLineOf(numbered().put(6, 4, u"-----")), 6);
    EXPECT_EQ(dashLineOf(numbered().put(2, 4, u"-----")), 2);
}

TEST(DashLine, NoneIsZero)
{
    EXPECT_EQ(dashLineOf(numbered()), 0);
    EXPECT_EQ(dashLineOf(numbered().put(6, 1, u"---- ---- ----")), 0);
    EXPECT_EQ(dashLineOf(numbered().put(6, 1, u"_____")), 0);
}

TEST(DashLine, LineOneIsNeverTested)
{
    EXPECT_EQ(dashLineOf(numbered().put(1, 1, u"-----")), 0);
}

TEST(DashLine, StartsWithinTheFirst28Columns)
{
    EXPECT_EQ(dashLineOf(numbered().put(6, 28, u"-----")), 6);
    EXPECT_EQ(dashLineOf(numbered().put(6, 29, u"-----")), 0);
    EXPECT_EQ(dashLineOf(numbered().put(6, 30, u"-----")), 0);
    EXPECT_EQ(dashLineOf(numbered().put(6, 42, u"-----")), 0);
    EXPECT_EQ(dashLineOf(numbered().put(6, 28, u"------------")), 6);
}

TEST(DashLine, WithoutLineFeedsColumn29CountsToo)
{
    const Text at29 = numbered().put(6, 29, u"-----").text(u"\r");
    EXPECT_EQ(ScreenLines(at29).dashLine(), 6);
    const Text at30 = numbered().put(6, 30, u"-----").text(u"\r");
    EXPECT_EQ(ScreenLines(at30).dashLine(), 0);
}

TEST(DashLine, TheLastOneWins)
{
    EXPECT_EQ(dashLineOf(numbered().put(5, 1, u"-----").put(8, 1, u"-----")), 8);
    EXPECT_EQ(dashLineOf(numbered().put(5, 1, u"-----").put(6, 1, u"-----")), 6);
    EXPECT_EQ(dashLineOf(numbered().put(5, 1, u"-----").put(19, 1, u"-----")), 19);
    EXPECT_EQ(dashLineOf(numbered().put(5, 1, u"-----").put(8, 40, u"-----")), 5);
}

TEST(DashLine, Line20IsTheLastThatCanBeIt)
{
    EXPECT_EQ(dashLineOf(numbered().put(5, 1, u"-----").put(20, 1, u"-----")), 20);
    EXPECT_EQ(dashLineOf(numbered().put(5, 1, u"-----").put(21, 30, u"-----")), 5);
}

TEST(DashLine, TheSearchCrossesLines)
{
    // The rest of the text after line 19 is LF "AB" CR LF and the dashes, which have position 6 in it.
    EXPECT_EQ(dashLineOf(numbered().put(20, 1, u"AB ").put(21, 1, u"-----")), 20);
    // The rest of the text after line 19 is LF "L20" CR LF, 22 blanks and the dashes, which have position 29
    // in it, the last one that counts. With one more blank, they have position 30.
    EXPECT_EQ(dashLineOf(numbered().put(21, 23, u"-----")), 20);
    EXPECT_EQ(dashLineOf(numbered().put(21, 24, u"-----")), 0);
}

TEST(DashLine, VanishedEmptyLinesCountInThePosition)
{
    const auto withEmptyLine = [](std::size_t column) {
        return u"A\r\n\r\n" + Text(column - 1, u' ') + u"-----\r\n" + numbered().text();
    };
    // The rest of the text begins with LF CR LF, so column 26 is at position 29.
    const Text near = withEmptyLine(26), far = withEmptyLine(27);
    EXPECT_EQ(ScreenLines(near).dashLine(), 2);
    EXPECT_EQ(ScreenLines(far).dashLine(), 0);
}

TEST(DashLine, IsCountedWithoutTheVanishedLines)
{
    const Text text = u"A\r\n\r\nB\r\n-----\r\n" + numbered().text();
    EXPECT_EQ(ScreenLines(text).dashLine(), 3);
}

TEST(CutLine, LeavesWhatFollows)
{
    TextSpan rest = u"A\r\nB";
    EXPECT_EQ(cutLine(rest), u"A\r");
    EXPECT_EQ(rest, u"\nB");
    dropControls(rest);
    EXPECT_EQ(rest, u"B");
    EXPECT_EQ(cutLine(rest), u"B");
    EXPECT_EQ(rest, u"");
    dropControls(rest);
    EXPECT_EQ(rest, u"");
}

} // namespace
} // namespace plotvue
