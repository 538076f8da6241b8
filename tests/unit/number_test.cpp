#include "capture/failure.h"
#include "capture/number.h"

#include <cmath>
#include <gtest/gtest.h>

namespace plotvue {
namespace {

TEST(LeadingNumber, DigitsAreTheNumber)
{
    EXPECT_EQ(leadingNumber(u"0"), 0);
    EXPECT_EQ(leadingNumber(u"1234"), 1234);
    EXPECT_EQ(leadingNumber(u"000000012"), 12);
    EXPECT_EQ(leadingNumber(u"123456789"), 123456789);
}

TEST(LeadingNumber, BlanksTabsAndLineFeedsAreSkippedWhereverTheyStand)
{
    EXPECT_EQ(leadingNumber(u"     1234"), 1234);
    EXPECT_EQ(leadingNumber(u"1234     "), 1234);
    EXPECT_EQ(leadingNumber(u" 1 2 3 4 "), 1234);
    EXPECT_EQ(leadingNumber(u"\t1\t2\n3\n"), 123);
    EXPECT_EQ(leadingNumber(u"- 5"), -5);
    EXPECT_EQ(leadingNumber(u"1 . 5"), 1.5);
    EXPECT_EQ(leadingNumber(u"1 E + 2"), 100);
    EXPECT_EQ(leadingNumber(u"1 2 X 3"), 12);
}

TEST(LeadingNumber, OtherWhiteSpaceEndsTheNumber)
{
    EXPECT_EQ(leadingNumber(u"12\r34"), 12);
    EXPECT_EQ(leadingNumber(u"\r34"), 0);
    EXPECT_EQ(leadingNumber(u"12\v34"), 12);
    EXPECT_EQ(leadingNumber(u"12\f34"), 12);
    EXPECT_EQ(leadingNumber(u"12\u00A034"), 12);
    EXPECT_EQ(leadingNumber(Text{u'1', u'\0', u'2'}), 1);
}

TEST(LeadingNumber, NothingToReadIsZero)
{
    EXPECT_EQ(leadingNumber(u""), 0);
    EXPECT_EQ(leadingNumber(u"         "), 0);
    EXPECT_EQ(leadingNumber(u"N3"), 0);
    EXPECT_EQ(leadingNumber(u"X123"), 0);
    EXPECT_EQ(leadingNumber(u"$123"), 0);
    EXPECT_EQ(leadingNumber(u"(123)"), 0);
    EXPECT_EQ(leadingNumber(u",123"), 0);
    EXPECT_EQ(leadingNumber(u"\u0661\u0662"), 0); // digits of another script
}

TEST(LeadingNumber, OneSignMayStandInFront)
{
    EXPECT_EQ(leadingNumber(u"-123"), -123);
    EXPECT_EQ(leadingNumber(u"+123"), 123);
    EXPECT_EQ(leadingNumber(u"--123"), 0);
    EXPECT_EQ(leadingNumber(u"+-123"), 0);
    EXPECT_EQ(leadingNumber(u"-+123"), 0);
    EXPECT_EQ(leadingNumber(u"-"), 0);
    EXPECT_EQ(leadingNumber(u"+"), 0);
    EXPECT_EQ(leadingNumber(u"-X"), 0);
}

TEST(LeadingNumber, ASignAfterItDoesNotMakeItNegative)
{
    EXPECT_EQ(leadingNumber(u"1234-"), 1234);
    EXPECT_EQ(leadingNumber(u"12.50-"), 12.5);
    EXPECT_EQ(leadingNumber(u"12-34"), 12);
    EXPECT_EQ(leadingNumber(u"12+34"), 12);
    EXPECT_EQ(leadingNumber(u"1234CR"), 1234);
}

TEST(LeadingNumber, AtMostOneDecimalPointIsTaken)
{
    EXPECT_EQ(leadingNumber(u"12.5"), 12.5);
    EXPECT_EQ(leadingNumber(u".5"), 0.5);
    EXPECT_EQ(leadingNumber(u"-.5"), -0.5);
    EXPECT_EQ(leadingNumber(u"5."), 5);
    EXPECT_EQ(leadingNumber(u"5.-"), 5);
    EXPECT_EQ(leadingNumber(u"1.5.7"), 1.5);
    EXPECT_EQ(leadingNumber(u"1..5"), 1);
    EXPECT_EQ(leadingNumber(u"."), 0);
    EXPECT_EQ(leadingNumber(u"-."), 0);
    EXPECT_EQ(leadingNumber(u"..5"), 0);
    EXPECT_EQ(leadingNumber(u".E5"), 0);
}

TEST(LeadingNumber, AThousandsCommaEndsTheNumber)
{
    EXPECT_EQ(leadingNumber(u"1,234"), 1);
    EXPECT_EQ(leadingNumber(u"-1,234"), -1);
    EXPECT_EQ(leadingNumber(u"12.5,0"), 12.5);
}

TEST(LeadingNumber, AnExponentIsTaken)
{
    EXPECT_EQ(leadingNumber(u"1E3"), 1000);
    EXPECT_EQ(leadingNumber(u"1e3"), 1000);
    EXPECT_EQ(leadingNumber(u"1E+3"), 1000);
    EXPECT_EQ(leadingNumber(u"15E-1"), 1.5);
    EXPECT_EQ(leadingNumber(u"1.5E2"), 150);
    EXPECT_EQ(leadingNumber(u"5.E2"), 500);
    EXPECT_EQ(leadingNumber(u".5E2"), 50);
    EXPECT_EQ(leadingNumber(u"-2E2"), -200);
    EXPECT_EQ(leadingNumber(u"1E02"), 100);
    EXPECT_EQ(leadingNumber(u"2E0"), 2);
}

TEST(LeadingNumber, AnExponentWithoutDigitsEndsTheNumber)
{
    EXPECT_EQ(leadingNumber(u"7E"), 7);
    EXPECT_EQ(leadingNumber(u"7e"), 7);
    EXPECT_EQ(leadingNumber(u"7E+"), 7);
    EXPECT_EQ(leadingNumber(u"7E-"), 7);
    EXPECT_EQ(leadingNumber(u"7EX"), 7);
    EXPECT_EQ(leadingNumber(u"7E.5"), 7);
    EXPECT_EQ(leadingNumber(u"7EE5"), 7);
    EXPECT_EQ(leadingNumber(u"7E+-5"), 7);
    EXPECT_EQ(leadingNumber(u"7E,5"), 7);
    EXPECT_EQ(leadingNumber(u"E5"), 0);
}

TEST(LeadingNumber, TheExponentEndsAtTheFirstOtherCharacter)
{
    EXPECT_EQ(leadingNumber(u"1E2.5"), 100);
    EXPECT_EQ(leadingNumber(u"1E2E2"), 100);
    EXPECT_EQ(leadingNumber(u"1E2-"), 100);
    EXPECT_EQ(leadingNumber(u"1E2,3"), 100);
}

TEST(LeadingNumber, OnlyEIsTheLetterOfAnExponent)
{
    EXPECT_EQ(leadingNumber(u"1D3"), 1);
    EXPECT_EQ(leadingNumber(u"0x10"), 0);
    EXPECT_EQ(leadingNumber(u"&H10"), 0);
    EXPECT_EQ(leadingNumber(u"INF"), 0);
    EXPECT_EQ(leadingNumber(u"NAN"), 0);
}

TEST(LeadingNumber, TooLargeForADoubleIsARunTimeError)
{
    EXPECT_EQ(leadingNumber(u"1E308"), 1e308);
    EXPECT_THROW(leadingNumber(u"1E309"), Failure);
    EXPECT_THROW(leadingNumber(u"-1E309"), Failure);
    EXPECT_THROW(leadingNumber(u"1E999999999999999999999999"), Failure);
    EXPECT_THROW(leadingNumber(u"10E9223372036854775807"), Failure);
    EXPECT_THROW(leadingNumber(u"10E2147483647"), Failure);
    EXPECT_THROW(leadingNumber(Text(400, u'9')), Failure);
    EXPECT_THROW(leadingNumber(Text(400, u'9') + u"E-5"), Failure);
    EXPECT_THROW(leadingNumber(u"0.01E311"), Failure);
}

TEST(LeadingNumber, TooSmallForADoubleIsZero)
{
    EXPECT_EQ(leadingNumber(u"1E-400"), 0);
    EXPECT_EQ(leadingNumber(u"-1E-400"), 0);
    EXPECT_EQ(leadingNumber(u"1E-999999999999999999999999"), 0);
    EXPECT_EQ(leadingNumber(u".01E-9223372036854775808"), 0);
    EXPECT_EQ(leadingNumber(u".01E-2147483648"), 0);
    EXPECT_EQ(leadingNumber(u"." + Text(400, u'0') + u"1"), 0);
    EXPECT_EQ(leadingNumber(u"." + Text(400, u'0') + u"1E5"), 0);
    EXPECT_EQ(leadingNumber(u"." + Text(400, u'0') + u"1E+5"), 0);
    EXPECT_EQ(leadingNumber(u"0E999"), 0);
    EXPECT_EQ(leadingNumber(u"0E99999999999999999999999"), 0);
}

TEST(LeadingNumber, LongMantissaAndExponentBalance)
{
    EXPECT_EQ(leadingNumber(u"1" + Text(400, u'0') + u"E-400"), 1);
    EXPECT_EQ(leadingNumber(u"." + Text(400, u'0') + u"1E401"), 1);
}

TEST(LeadingNumber, ZeroIsNeverNegative)
{
    EXPECT_FALSE(std::signbit(leadingNumber(u"-0")));
    EXPECT_FALSE(std::signbit(leadingNumber(u"-0.00")));
    EXPECT_FALSE(std::signbit(leadingNumber(u"-1E-400")));
}

TEST(LeadingNumberWithoutCommas, CommasAreDroppedWhereverTheyStand)
{
    EXPECT_EQ(leadingNumberWithoutCommas(u"1,234"), 1234);
    EXPECT_EQ(leadingNumberWithoutCommas(u"1,234,567.50"), 1234567.5);
    EXPECT_EQ(leadingNumberWithoutCommas(u",5"), 5);
    EXPECT_EQ(leadingNumberWithoutCommas(u"-,5"), -5);
    EXPECT_EQ(leadingNumberWithoutCommas(u"1.,5"), 1.5);
    EXPECT_EQ(leadingNumberWithoutCommas(u"1,E,2"), 100);
    EXPECT_EQ(leadingNumberWithoutCommas(u" , , "), 0);
}

TEST(LeadingNumberWithoutCommas, EverythingElseIsAsEver)
{
    EXPECT_EQ(leadingNumberWithoutCommas(u"  1 2"), 12);
    EXPECT_EQ(leadingNumberWithoutCommas(u"1,234-"), 1234);
    EXPECT_EQ(leadingNumberWithoutCommas(u"(1,234)"), 0);
    EXPECT_EQ(leadingNumberWithoutCommas(u"1;234"), 1);
    EXPECT_EQ(leadingNumberWithoutCommas(u""), 0);
}

TEST(PlainNumber, WholeNumbersStandAlone)
{
    EXPECT_EQ(plainNumber(0), u"0");
    EXPECT_EQ(plainNumber(7), u"7");
    EXPECT_EQ(plainNumber(100), u"100");
    EXPECT_EQ(plainNumber(-1200), u"-1200");
    EXPECT_EQ(plainNumber(123456789012345.0), u"123456789012345");
}

TEST(PlainNumber, DecimalsFollowAPeriodWithoutTrailingZeros)
{
    EXPECT_EQ(plainNumber(0.5), u"0.5");
    EXPECT_EQ(plainNumber(-0.5), u"-0.5");
    EXPECT_EQ(plainNumber(12.50), u"12.5");
    EXPECT_EQ(plainNumber(1234.56), u"1234.56");
    EXPECT_EQ(plainNumber(0.001), u"0.001");
    EXPECT_EQ(plainNumber(10.01), u"10.01");
}

TEST(PlainNumber, AtMostFifteenSignificantDigits)
{
    EXPECT_EQ(plainNumber(0.1 + 0.2), u"0.3");
    EXPECT_EQ(plainNumber(1.0 / 3), u"0.333333333333333");
    EXPECT_EQ(plainNumber(-1.0 / 3), u"-0.333333333333333");
    EXPECT_EQ(plainNumber(200.0 / 3), u"66.6666666666667");
    EXPECT_EQ(plainNumber(1234567890123456.0), u"1234567890123460");
    EXPECT_EQ(plainNumber(0.99999999999999999), u"1");
    EXPECT_EQ(plainNumber(99999.99999999999999), u"100000");
}

TEST(PlainNumber, NeverAnExponent)
{
    EXPECT_EQ(plainNumber(1e21), u"1000000000000000000000");
    EXPECT_EQ(plainNumber(1e-7), u"0.0000001");
    EXPECT_EQ(plainNumber(-2.5e-10), u"-0.00000000025");
    EXPECT_EQ(plainNumber(1e300), u"1" + Text(300, u'0'));
}

TEST(PlainNumber, ZeroHasNoSign)
{
    EXPECT_EQ(plainNumber(-0.0), u"0");
}

TEST(SignedNumber, ABlankStandsInFrontUnlessItIsNegative)
{
    EXPECT_EQ(signedNumber(1998), u" 1998");
    EXPECT_EQ(signedNumber(0), u" 0");
    EXPECT_EQ(signedNumber(-0.0), u" 0");
    EXPECT_EQ(signedNumber(-5), u"-5");
    EXPECT_EQ(signedNumber(2.25), u" 2.25");
}

} // namespace
} // namespace plotvue
