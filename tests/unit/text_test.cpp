#include "capture/failure.h"
#include "capture/text.h"
#include "capture/utf8.h"

#include <cstring>
#include <gtest/gtest.h>
#include <utility>

namespace plotvue {
namespace {

TEST(Find, PositionsCountFromOne)
{
    EXPECT_EQ(find(u"PRODUCT:", u"P"), 1);
    EXPECT_EQ(find(u"PRODUCT:", u":"), 8);
}

TEST(Find, AbsentIsZero)
{
    EXPECT_EQ(find(u"PRODUCT", u":"), 0);
    EXPECT_EQ(find(u"", u"A"), 0);
    EXPECT_FALSE(holds(u"PRODUCT", u":"));
}

TEST(Find, TheFirstOccurrenceCounts)
{
    EXPECT_EQ(find(u"A:B:C", u":"), 2);
}

TEST(Find, CaseMatters)
{
    EXPECT_EQ(find(u"qxm31h", u"QXM31H"), 0);
    EXPECT_FALSE(holds(u"Qxm31H", u"QXM31H"));
    EXPECT_TRUE(holds(u"xQXM31Hx", u"QXM31H"));
}

TEST(Find, AnEmptyTextIsFoundAtTheBeginning)
{
    EXPECT_EQ(find(u"JAN31", u""), 1);
    EXPECT_EQ(find(u"", u""), 1);
}

TEST(Mid, CutsFromAPositionCountedFromOne)
{
    EXPECT_EQ(mid(u"OCT99", 1, 3), u"OCT");
    EXPECT_EQ(mid(u"OCT99", 4, 2), u"99");
    EXPECT_EQ(mid(u"OCT99", 4), u"99");
}

TEST(Mid, AfterTheEndNothingIsLeft)
{
    EXPECT_EQ(mid(u"OCT99", 4, 9), u"99");
    EXPECT_EQ(mid(u"OCT99", 6, 2), u"");
    EXPECT_EQ(mid(u"OCT99", 60, 2), u"");
    EXPECT_EQ(mid(u"OCT99", 2, 0), u"");
    EXPECT_EQ(mid(u"", 1, 3), u"");
}

TEST(Mid, BeforePositionOneIsARunTimeError)
{
    EXPECT_THROW(mid(u"OCT99", 0, 2), Failure);
    EXPECT_THROW(mid(u"OCT99", -3, 2), Failure);
}

TEST(Mid, ANegativeLengthIsARunTimeError)
{
    EXPECT_THROW(mid(u"OCT99", 2, -1), Failure);
    EXPECT_THROW(mid(u"OCT99", 60, -1), Failure);
}

TEST(WithoutLast, TakesTheCarriageReturnOff)
{
    EXPECT_EQ(withoutLast(u"LINE\r"), u"LINE");
    EXPECT_EQ(withoutLast(u"\r"), u"");
}

TEST(WithoutLast, TakesAnyLastCharacterOff)
{
    EXPECT_EQ(withoutLast(u"LINE"), u"LIN");
    EXPECT_EQ(withoutLast(u""), u"");
}

TEST(WholeNumbers, AHalfGoesToTheEvenNeighbour)
{
    EXPECT_EQ(toInt16(0.5, u"It"), 0);
    EXPECT_EQ(toInt16(1.5, u"It"), 2);
    EXPECT_EQ(toInt16(2.5, u"It"), 2);
    EXPECT_EQ(toInt16(-2.5, u"It"), -2);
    EXPECT_EQ(toInt16(-3.5, u"It"), -4);
    EXPECT_EQ(toInt32(4.5, u"It"), 4);
    EXPECT_EQ(toInt32(5.5, u"It"), 6);
    EXPECT_EQ(toInt32(5.4999, u"It"), 5);
}

TEST(WholeNumbers, SixteenBitsReachFromMinus32768To32767)
{
    EXPECT_EQ(toInt16(32767, u"It"), 32767);
    EXPECT_EQ(toInt16(32767.4, u"It"), 32767);
    EXPECT_EQ(toInt16(-32768.5, u"It"), -32768);
    EXPECT_THROW(toInt16(32767.5, u"It"), Failure);
    EXPECT_THROW(toInt16(32768, u"It"), Failure);
    EXPECT_THROW(toInt16(-32769, u"It"), Failure);
    EXPECT_THROW(toInt16(1e300, u"It"), Failure);
}

TEST(WholeNumbers, ThirtyTwoBitsReachFromMinus2147483648To2147483647)
{
    EXPECT_EQ(toInt32(2147483647, u"It"), 2147483647);
    EXPECT_EQ(toInt32(-2147483648.0, u"It"), -2147483647 - 1);
    EXPECT_THROW(toInt32(2147483647.5, u"It"), Failure);
    EXPECT_THROW(toInt32(2147483648.0, u"It"), Failure);
    EXPECT_THROW(toInt32(-2147483649.0, u"It"), Failure);
}

TEST(WholeNumbers, WhatIsNoNumberFitsNowhere)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(toInt16(nan, u"It"), Failure);
    EXPECT_THROW(toInt32(nan, u"It"), Failure);
    EXPECT_THROW(finite(nan), Failure);
    EXPECT_THROW(finite(std::numeric_limits<double>::infinity()), Failure);
    EXPECT_EQ(finite(-1.5), -1.5);
}

TEST(WholeNumbers, TheSentenceNamesWhatDoesNotFit)
{
    try {
        toInt16(40000, u"The rank");
        FAIL() << "40000 does not fit";
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.sentence.starts_with(u"The rank "));
        EXPECT_TRUE(failure.sentence.ends_with(u"."));
    }
}

TEST(Utf8, WritesOneToFourBytesACharacter)
{
    EXPECT_EQ(toUtf8(u"A\r\n"), "A\r\n");
    EXPECT_EQ(toUtf8(u"\u007F\u0080"), "\x7F\xC2\x80");
    EXPECT_EQ(toUtf8(u"\u00E9"), "\xC3\xA9");
    EXPECT_EQ(toUtf8(u"\u07FF\u0800"), "\xDF\xBF\xE0\xA0\x80");
    EXPECT_EQ(toUtf8(u"\u20AC"), "\xE2\x82\xAC");
    EXPECT_EQ(toUtf8(u"\U0001F6E2"), "\xF0\x9F\x9B\xA2");
}

TEST(Utf8, ReadsWhatItWrites)
{
    const Text text = u"CAF\u00E9 \u20AC5 \U0001F6E2 \"\r\n\U0010FFFF\uFFFF";
    EXPECT_EQ(fromUtf8(toUtf8(text)), text);
}

TEST(Utf8, TheFirstAndTheLastOfEachLength)
{
    const std::pair<Text, std::string> written[] = {
        {u"\u007F", "\x7F"},
        {u"\u0080", "\xC2\x80"},
        {u"\u07FF", "\xDF\xBF"},
        {u"\u0800", "\xE0\xA0\x80"},
        {u"\uD7FF", "\xED\x9F\xBF"},
        {u"\uE000", "\xEE\x80\x80"},
        {u"\uFFFF", "\xEF\xBF\xBF"},
        {u"\U00010000", "\xF0\x90\x80\x80"},
        {u"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
        {{u'\xDBFF'}, "\xED\xAF\xBF"}, // one half of a surrogate pair alone
        {{u'\xDC00'}, "\xED\xB0\x80"},
        {{u'\xD7FF', u'\xDC00'}, "\xED\x9F\xBF\xED\xB0\x80"},
        {{u'\xDC00', u'\xDC00'}, "\xED\xB0\x80\xED\xB0\x80"},
        {{u'\xD800', u'\xDBFF'}, "\xED\xA0\x80\xED\xAF\xBF"},
        {{u'\xDBFF', u'\xE000'}, "\xED\xAF\xBF\xEE\x80\x80"},
    };
    for (const auto& [text, bytes] : written) {
        EXPECT_EQ(toUtf8(text), bytes);
        EXPECT_EQ(fromUtf8(bytes), text);
    }
}

TEST(Utf8, NothingAfterTheTextIsLookedAt)
{
    const Text pair = u"\U0001F6E2";
    EXPECT_EQ(toUtf8(TextSpan(pair).substr(0, 1)), "\xED\xA0\xBD");
}

TEST(Utf8, AnAccentIsOneCharacterSoThatColumnsStay)
{
    EXPECT_EQ(find(fromUtf8("CAF\xC3\xA9:"), u":"), 5);
}

TEST(Utf8, BytesThatAreNoUtf8BecomeReplacementCharacters)
{
    EXPECT_EQ(fromUtf8("A\xFFZ"), u"A\uFFFDZ");
    EXPECT_EQ(fromUtf8("\xC3"), u"\uFFFD");   // cut off
    EXPECT_EQ(fromUtf8("\xC3Z"), u"\uFFFDZ"); // not continued
    EXPECT_EQ(fromUtf8("\x80"), u"\uFFFD");   // a continuation alone
    for (const char* longer : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF"}) // too long
        EXPECT_EQ(fromUtf8(longer), Text(std::strlen(longer), u'\uFFFD'));
    EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80").front(), 0xFFFD); // beyond the last character
}

TEST(Utf8, AHalfOfAPairSurvivesTheWayOutAndBack)
{
    const Text half{u'A', static_cast<char16_t>(0xD83D), u'Z'};
    EXPECT_EQ(toUtf8(half), "A\xED\xA0\xBDZ");
    EXPECT_EQ(fromUtf8(toUtf8(half)), half);
}

} // namespace
} // namespace plotvue
