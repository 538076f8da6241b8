#include "chart/drawable.h"

#include <gtest/gtest.h>

namespace plotvue {

TEST(ChartDrawable, RemovesControlCharacters)
{
    EXPECT_EQ(drawable(u" OC\tT99\r\n"), u"OCT99");
    EXPECT_EQ(drawable(u"a\u0085\u2028b"), u"ab");
    EXPECT_EQ(drawable(u"a\u007Fb\u00A0c"), u"ab\u00A0c") << "a no-break space is not a control character";
    EXPECT_TRUE(drawable(u"\r").empty());
    EXPECT_TRUE(isBlank(u" \r"));
    EXPECT_FALSE(isBlank(u" x"));
    EXPECT_EQ(drawable(Text(100000, u'x')).size(), 500U);
}

TEST(ChartDrawable, DoesNotSplitSurrogatePairs)
{
    const auto width = [](TextSpan text) { return 6.0 * static_cast<double>(text.size()); };
    EXPECT_EQ(drawable(Text(499, u'x') + u"\U0001F600"), Text(499, u'x'));
    EXPECT_EQ(drawable(Text(498, u'x') + u"\U0001F600!"), Text(498, u'x') + u"\U0001F600");
    // Includes the first and the last code point that needs a surrogate pair.
    for (const TextSpan pair : {u"\U00010000", u"\U0001F600", u"\U0010FFFF"}) {
        const Text text = u"a" + Text(pair) + u"bcd";
        EXPECT_EQ(elided(text, 18, width), u"a\u2026");
        EXPECT_EQ(elided(text, 24, width), u"a" + Text(pair) + u"\u2026");
    }
}

TEST(ChartDrawable, ElidesToTheWidth)
{
    const auto width = [](TextSpan text) { return 6.0 * static_cast<double>(text.size()); };
    EXPECT_EQ(elided(u"Long title", 60, width), u"Long title");
    EXPECT_EQ(elided(u"Long title", 59, width), u"Long tit\u2026");
    EXPECT_EQ(elided(u"Long title", 54, width), u"Long tit\u2026");
    EXPECT_EQ(elided(u"Long title", 36, width), u"Long\u2026");
    EXPECT_EQ(elided(u"Long title", 6, width), u"\u2026");
    EXPECT_TRUE(elided(u"Long title", 5, width).empty());
}

} // namespace plotvue
