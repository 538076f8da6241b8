#include "app/recognition.h"
#include "capture/failure.h"

#include <gtest/gtest.h>

namespace plotvue {
namespace {

struct Row {
    TextSpan marker;
    bool ranked = false;
    bool needsZero = false;
};

// The screens in the order in which recognition must try them.
constexpr Row order[] = {
    {u"QXM31H"},
    {u"QXM21D"},
    {u"QXMACTIVE"},
    {u"TO MONTH PROFIT AN", true},
    {u"RANKED PROFIT AN", true},
    {u"RANKED PAST", true},
    {u"VENDOR INVENTORY", true},
    {u"FINANCIAL RATIO", true},
    {u"QXM12E1"},
    {u"PFMEXP1"},
    {u"QXM21SXC"},
    {u"QXM21CXS"},
    {u"PFMGLARCH1"},
    {u"QXM12P2", false, true},
    {u"QXM12P", false, true},
    {u"QXM855DH", false, true},
    {u"QXM855TH", false, true},
    {u"QXM32C"},
    {u"QXMSJHIST"},
    {u"CRD812H"},
    {u"PCS05H1B"},
    {u"QXMLCHIST"},
};

// The marker of the screen that the text is recognised as; empty if it is none.
TextSpan recognised(TextSpan text)
{
    const Screen* screen = recognise(text);
    return screen ? screen->marker : TextSpan();
}

bool isRanked(TextSpan text)
{
    const Screen* screen = recognise(text);
    return screen && screen->ranked();
}

std::string bytes(TextSpan text)
{
    return {text.begin(), text.end()};
}

TEST(Recognition, EveryMarkerLeadsToItsScreen)
{
    for (const Row& row : order) {
        const Text text = u"AT 10:00 " + Text(row.marker) + u" PAGE";
        EXPECT_EQ(recognised(text), row.marker) << bytes(row.marker);
        EXPECT_EQ(isRanked(text), row.ranked) << bytes(row.marker);
    }
}

TEST(Recognition, AMarkerCountsAtBothEndsOfTheText)
{
    for (const Row& row : order) {
        EXPECT_EQ(recognised(Text(row.marker) + u" 0"), row.marker) << bytes(row.marker);
        EXPECT_EQ(recognised(u"0 " + Text(row.marker)), row.marker) << bytes(row.marker);
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
                EXPECT_EQ(recognised(text), earlier.marker) << bytes(text);
                EXPECT_EQ(isRanked(text), earlier.ranked) << bytes(text);
            }
        }
}

TEST(Recognition, AllMarkersTogetherAreAProductScreen)
{
    Text all;
    for (const Row& row : order)
        all.insert(0, Text(row.marker) + u"\r\n");
    EXPECT_EQ(recognised(all), u"QXM31H");
    EXPECT_FALSE(isRanked(all));
}

TEST(Recognition, NothingIsRecognisedInOtherTexts)
{
    for (const TextSpan text : {u"", u" ", u"0", u"Dear Sir, the figures for OCT99 follow.", u"QXM"}) {
        EXPECT_EQ(recognised(text), u"") << bytes(text);
        EXPECT_FALSE(isRanked(text));
    }
}

TEST(Recognition, AMarkerMustBeWhole)
{
    for (const Row& row : order) {
        Text cut(row.marker);
        cut.pop_back();
        if (row.marker == u"QXM12P2")
            continue; // without its last character it is "QXM12P", a marker, too
        EXPECT_EQ(recognised(u"0 " + cut), u"") << bytes(cut);
        EXPECT_EQ(recognised(u"0 " + cut + u"\r\n" + row.marker.back()), u"") << bytes(cut);
        EXPECT_EQ(recognised(u"0 " + Text(row.marker.substr(1))), u"") << bytes(cut);
    }
}

TEST(Recognition, AFalseStartDoesNotHideAMarker)
{
    for (const Row& row : order)
        for (std::size_t length = 1; length < row.marker.size(); ++length)
            EXPECT_EQ(recognised(u"0" + Text(row.marker.substr(0, length)) + Text(row.marker)), row.marker)
                << bytes(row.marker) << length;
}

TEST(Recognition, CaseMatters)
{
    for (const Row& row : order) {
        Text small(row.marker);
        for (char16_t& c : small)
            c = c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
        EXPECT_EQ(recognised(u"0 " + small), u"") << bytes(small);
    }
    EXPECT_EQ(recognised(u"0 qXM31H"), u"");
    EXPECT_EQ(recognised(u"0 QXM31h"), u"");
}

TEST(Recognition, FarDownTheTextAMarkerStillCounts)
{
    EXPECT_EQ(recognised(Text(100000, u'Q') + u"XM31H"), u"QXM31H");
}

TEST(ZeroCheck, FourScreensMustHoldAZero)
{
    for (const Row& row : order) {
        if (row.marker == u"PCS05H1B")
            continue; // its marker holds a 0
        const Text withoutZero = u"AT 11:11 " + Text(row.marker) + u" PAGE 1";
        EXPECT_EQ(recognised(withoutZero), row.needsZero ? u"" : row.marker) << bytes(row.marker);
    }
}

TEST(ZeroCheck, AZeroAnywhereDoes)
{
    EXPECT_EQ(recognised(u"0QXM12P2"), u"QXM12P2");
    EXPECT_EQ(recognised(u"QXM12P2\r\n\r\n1,230"), u"QXM12P2");
    EXPECT_EQ(recognised(u"A0 QXM855TH"), u"QXM855TH");
}

TEST(ZeroCheck, TheLetterOIsNoZero)
{
    EXPECT_EQ(recognised(u"QXM12P TOTAL O"), u"");
}

TEST(ZeroCheck, WithoutAZeroTheLaterTestsGoOn)
{
    for (const Row& row : order) {
        if (!row.needsZero)
            continue;
        for (const TextSpan later : {u"QXM32C", u"QXMSJHIST", u"CRD812H", u"QXMLCHIST"})
            EXPECT_EQ(recognised(Text(row.marker) + u" " + Text(later)), later) << bytes(row.marker);
    }
}

TEST(ZeroCheck, AnEarlierTestIsNotHeldUp)
{
    EXPECT_EQ(recognised(u"QXM12P2 QXM12E1"), u"QXM12E1");
    EXPECT_EQ(recognised(u"QXM855DH PFMGLARCH1"), u"PFMGLARCH1");
}

TEST(ZeroCheck, ACustomerCategoryScreenIsNotTakenForTheOther)
{
    EXPECT_EQ(recognised(u"QXM12P 0"), u"QXM12P");
    EXPECT_EQ(recognised(u"QXM12P 2 0"), u"QXM12P");
    EXPECT_EQ(recognised(u"QXM12P QXM12P2 0"), u"QXM12P2");
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
        EXPECT_EQ(recognised(zeroAt(row.marker, 32767)), row.marker) << bytes(row.marker);
        const Text late = zeroAt(row.marker, 32768);
        if (row.needsZero)
            EXPECT_THROW(recognise(late), Failure) << bytes(row.marker);
        else
            EXPECT_EQ(recognised(late), row.marker) << bytes(row.marker);
    }
}

} // namespace
} // namespace plotvue
