#include "capture/failure.h"
#include "capture/month.h"

#include <gtest/gtest.h>
#include <utility>

namespace plotvue {
namespace {

TEST(DaysOfMonth, EveryMonthHasItsDaysAndFebruaryAlways28)
{
    const std::pair<TextSpan, int> months[] = {
        {u"JAN", 31}, {u"FEB", 28}, {u"MAR", 31}, {u"APR", 30}, {u"MAY", 31}, {u"JUN", 30},
        {u"JUL", 31}, {u"AUG", 31}, {u"SEP", 30}, {u"OCT", 31}, {u"NOV", 30}, {u"DEC", 31},
    };
    for (const auto& [name, days] : months)
        EXPECT_EQ(daysOfMonth(name), days);
}

TEST(DaysOfMonth, AnUnknownNameHasNone)
{
    EXPECT_EQ(daysOfMonth(u"XXX"), 0);
    EXPECT_EQ(daysOfMonth(u"   "), 0);
    EXPECT_EQ(daysOfMonth(u"jan"), 0);
    EXPECT_EQ(daysOfMonth(u"JA\r"), 0);
}

TEST(DaysOfMonth, AnEmptyNameIsFoundAtJanuary)
{
    EXPECT_EQ(daysOfMonth(u""), 31);
}

TEST(DaysOfMonth, TheNameIsLookedUpAnywhereInTheTable)
{
    EXPECT_EQ(daysOfMonth(u"AN3"), 1); // the table has "1F" after it
    EXPECT_EQ(daysOfMonth(u"N31"), 0); // the table has "FE" after it
    EXPECT_EQ(daysOfMonth(u"C31"), 0); // the table ends after it
}

TEST(ElapsedPart, IsTheDayByTheDaysOfTheMonth)
{
    EXPECT_DOUBLE_EQ(elapsedPart(30, 10), 10.0 / 30);
    EXPECT_DOUBLE_EQ(elapsedPart(31, 11), 11.0 / 31);
    EXPECT_DOUBLE_EQ(elapsedPart(28, 14), 0.5);
    EXPECT_EQ(elapsedPart(28, 28), 1);
    EXPECT_GT(elapsedPart(28, 29), 1);
}

TEST(ElapsedPart, IsWorkedOutFromTheDaysThatAreLeft)
{
    EXPECT_EQ(elapsedPart(30, 10), 1 - (30.0 - 10) / 30);
    EXPECT_EQ(elapsedPart(31, 7), 1 - (31.0 - 7) / 31);
}

TEST(ElapsedPart, NoDayCountsAsAFullMonth)
{
    EXPECT_EQ(elapsedPart(31, 0), 1);
    EXPECT_EQ(elapsedPart(28, 0), 1);
    EXPECT_EQ(elapsedPart(1, 0), 1);
}

TEST(ElapsedPart, AMonthWithoutDaysIsARunTimeError)
{
    EXPECT_THROW(elapsedPart(0, 10), Failure);
    EXPECT_THROW(elapsedPart(0, 0), Failure);
}

} // namespace
} // namespace plotvue
