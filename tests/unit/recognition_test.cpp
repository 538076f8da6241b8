#include "app/recognition.h"
#include "capture/failure.h"

#include <gtest/gtest.h>

namespace plotvue {
namespace {

struct Row {
    TextSpan marker;
    TextSpan identifier;
    bool ranked = false;
    bool asksForZero = false;
};

// In the order in which they are tried.
constexpr Row order[] = {
    {u"QXM31H", u"QXM31H"},
    {u"QXM21D", u"QXM21D"},
    {u"QXMACTIVE", u"QXMACTIVE"},
    {u"TO MONTH PROFIT AN", u"M2Mpft", true},
    {u"RANKED PROFIT AN", u"ProfRank", true},
    {u"RANKED PAST", u"PastDue", true},
    {u"VENDOR INVENTORY", u"VendInv", true},
    {u"FINANCIAL RATIO", u"Ratio", true},
    {u"QXM12E1", u"QXM12E1"},
    {u"PFMEXP1", u"PFMEXP1"},
    {u"QXM21SXC", u"QXM21SXC"},
    {u"QXM21CXS", u"QXM21CXS"},
    {u"PFMGLARCH1", u"PFMGLARCH1"},
    {u"QXM12P2", u"QXM12P2", false, true},
    {u"QXM12P", u"QXM12P", false, true},
    {u"QXM855DH", u"QXM855DH", false, true},
    {u"QXM855TH", u"QXM855TH", false, true},
    {u"QXM32C", u"QXM32C"},
    {u"QXMSJHIST", u"QXMSJHIST"},
    {u"CRD812H", u"CRD812H"},
    {u"PCS05H1B", u"PCS05H1B"},
    {u"QXMLCHIST", u"QXMLCHIST"},
};

std::string bytes(TextSpan text)
{
    return {text.begin(), text.end()};
}

TEST(Recognition, EveryMarkerLeadsToItsScreen)
{
    for (const Row& row : order) {
        const Recognised recognised = recognise(u"AT 10:00 " + Text(row.marker) + u" PAGE");
        EXPECT_EQ(recognised.identifier, row.identifier) << bytes(row.marker);
        EXPECT_EQ(recognised.ranked, row.ranked) << bytes(row.marker);
    }
}

TEST(Recognition, AMarkerCountsAtBothEndsOfTheText)
{
    for (const Row& row : order) {
        EXPECT_EQ(recognise(Text(row.marker) + u" 0").identifier, row.identifier) << bytes(row.marker);
        EXPECT_EQ(recognise(u"0 " + Text(row.marker)).identifier, row.identifier) << bytes(row.marker);
    }
}

TEST(Recognition, OfTwoMarkersTheEarlierTestWinsWhereverTheyStand)
{
    for (const Row& earlier : order)
        for (const Row* later = &earlier + 1; later != std::end(order); ++later) {
            const Text texts[] = {Text(earlier.marker) + u" 0 " + Text(later->marker),
                                  Text(later->marker) + u" 0 " + Text(earlier.marker),
                                  Text(later->marker) + Text(earlier.marker) + u"0"};
            for (const Text& text : texts) {
                EXPECT_EQ(recognise(text).identifier, earlier.identifier) << bytes(text);
                EXPECT_EQ(recognise(text).ranked, earlier.ranked) << bytes(text);
            }
        }
}

TEST(Recognition, AllMarkersTogetherAreAProductScreen)
{
    Text all;
    for (const Row& row : order)
        all.insert(0, Text(row.marker) + u"\r\n");
    EXPECT_EQ(recognise(all).identifier, u"QXM31H");
    EXPECT_FALSE(recognise(all).ranked);
}

TEST(Recognition, NothingIsRecognisedInOtherTexts)
{
    for (const TextSpan text : {u"", u" ", u"0", u"Dear Sir, the figures for OCT99 follow.", u"QXM"}) {
        EXPECT_EQ(recognise(text).identifier, u"") << bytes(text);
        EXPECT_FALSE(recognise(text).ranked);
    }
}

TEST(Recognition, AMarkerMustBeWhole)
{
    for (const Row& row : order) {
        Text cut(row.marker);
        cut.pop_back();
        if (row.marker == u"QXM12P2")
            continue; // what is left of it is a marker
        EXPECT_EQ(recognise(u"0 " + cut).identifier, u"") << bytes(cut);
        EXPECT_EQ(recognise(u"0 " + cut + u"\r\n" + row.marker.back()).identifier, u"") << bytes(cut);
        EXPECT_EQ(recognise(u"0 " + Text(row.marker.substr(1))).identifier, u"") << bytes(cut);
    }
}

TEST(Recognition, AFalseStartDoesNotHideAMarker)
{
    for (const Row& row : order)
        for (std::size_t length = 1; length < row.marker.size(); ++length)
            EXPECT_EQ(recognise(u"0" + Text(row.marker.substr(0, length)) + Text(row.marker)).identifier,
                      row.identifier)
                << bytes(row.marker) << length;
}

TEST(Recognition, CaseMatters)
{
    for (const Row& row : order) {
        Text small(row.marker);
        for (char16_t& c : small)
            c = c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
        EXPECT_EQ(recognise(u"0 " + small).identifier, u"") << bytes(small);
    }
    EXPECT_EQ(recognise(u"0 qXM31H").identifier, u"");
    EXPECT_EQ(recognise(u"0 QXM31h").identifier, u"");
}

TEST(Recognition, FarDownTheTextAMarkerStillCounts)
{
    EXPECT_EQ(recognise(Text(100000, u'Q') + u"XM31H").identifier, u"QXM31H");
}

TEST(ZeroCheck, FourScreensMustHoldAZero)
{
    for (const Row& row : order) {
        if (row.marker == u"PCS05H1B")
            continue; // holds one itself
        const Text withoutZero = u"AT 11:11 " + Text(row.marker) + u" PAGE 1";
        EXPECT_EQ(recognise(withoutZero).identifier, row.asksForZero ? u"" : row.identifier)
            << bytes(row.marker);
    }
}

TEST(ZeroCheck, AZeroAnywhereDoes)
{
    EXPECT_EQ(recognise(u"0QXM12P2").identifier, u"QXM12P2");
    EXPECT_EQ(recognise(u"QXM12P2\r\n\r\n1,230").identifier, u"QXM12P2");
    EXPECT_EQ(recognise(u"A0 QXM855TH").identifier, u"QXM855TH");
}

TEST(ZeroCheck, TheLetterOIsNoZero)
{
    EXPECT_EQ(recognise(u"QXM12P TOTAL O").identifier, u"");
}

TEST(ZeroCheck, WithoutAZeroTheLaterTestsGoOn)
{
    for (const Row& asks : order) {
        if (!asks.asksForZero)
            continue;
        for (const TextSpan later : {u"QXM32C", u"QXMSJHIST", u"CRD812H", u"QXMLCHIST"})
            EXPECT_EQ(recognise(Text(asks.marker) + u" " + Text(later)).identifier, later)
                << bytes(asks.marker);
    }
}

TEST(ZeroCheck, AnEarlierTestIsNotHeldUp)
{
    EXPECT_EQ(recognise(u"QXM12P2 QXM12E1").identifier, u"QXM12E1");
    EXPECT_EQ(recognise(u"QXM855DH PFMGLARCH1").identifier, u"PFMGLARCH1");
}

TEST(ZeroCheck, ACustomerCategoryScreenIsNotTakenForTheOther)
{
    EXPECT_EQ(recognise(u"QXM12P 0").identifier, u"QXM12P");
    EXPECT_EQ(recognise(u"QXM12P 2 0").identifier, u"QXM12P");
    EXPECT_EQ(recognise(u"QXM12P QXM12P2 0").identifier, u"QXM12P2");
}

TEST(ZeroCheck, ThePlaceOfTheZeroIsHeldIn16Bits)
{
    const auto zeroAt = [](TextSpan marker, std::size_t position) {
        Text text(marker);
        text.resize(position - 1, u' ');
        return text + u"0";
    };
    for (const Row& row : order) {
        if (row.marker == u"PCS05H1B")
            continue;
        EXPECT_EQ(recognise(zeroAt(row.marker, 32767)).identifier, row.identifier) << bytes(row.marker);
        const Text late = zeroAt(row.marker, 32768);
        if (row.asksForZero)
            EXPECT_THROW(recognise(late), Failure) << bytes(row.marker);
        else
            EXPECT_EQ(recognise(late).identifier, row.identifier) << bytes(row.marker);
    }
}

} // namespace
} // namespace plotvue
