// The line ends that terminals put on the clipboard.
#include "desktop/clipboard.h"

#include <gtest/gtest.h>

namespace plotvue {

TEST(LineEnds, ABareLineFeedBecomesCrLf)
{
    EXPECT_EQ(mendLineEnds(u"a\nb\nc\n"), u"a\r\nb\r\nc\r\n");
    EXPECT_EQ(mendLineEnds(u"a\n"), u"a\r\n");
}

TEST(LineEnds, AnEmptyLineThatEndsInABareLineFeedBecomesABlank)
{
    EXPECT_EQ(mendLineEnds(u"a\n\nb\n"), u"a\r\n \r\nb\r\n");
    EXPECT_EQ(mendLineEnds(u"a\n\n\n\nb\n"), u"a\r\n \r\n \r\n \r\nb\r\n");
    EXPECT_EQ(mendLineEnds(u"\na\n"), u" \r\na\r\n") << "the first line";
    EXPECT_EQ(mendLineEnds(u"\n"), u" \r\n");
}

TEST(LineEnds, CrLfAndItsEmptyLinesAreUnchanged)
{
    for (const TextSpan text : {u"a\r\nb\r\n", u"\r\n", u"\r\na", u"a\r\n\r\n\r\nb\r\n"})
        EXPECT_EQ(mendLineEnds(text), text);
}

TEST(LineEnds, ALastLineWithoutAnEndGetsOneAfterABareLineFeed)
{
    EXPECT_EQ(mendLineEnds(u"a\nb"), u"a\r\nb\r\n");
    EXPECT_EQ(mendLineEnds(u"\n "), u" \r\n \r\n");
    EXPECT_EQ(mendLineEnds(u"a\nb\r\nc"), u"a\r\nb\r\nc\r\n") << "one bare line feed is enough";
    EXPECT_EQ(mendLineEnds(u"a\r\nb"), u"a\r\nb") << "no bare line feed";
}

TEST(LineEnds, BareCarriageReturnsAreUnchanged)
{
    for (const TextSpan text : {u"a\rb\r", u"\r\r", u"a\r\r\nb"})
        EXPECT_EQ(mendLineEnds(text), text);
}

TEST(LineEnds, EachLineIsMendedOnItsOwn)
{
    EXPECT_EQ(mendLineEnds(u"a\r\n\nb\n\r\nc\r\n"), u"a\r\n \r\nb\r\n\r\nc\r\n");
    EXPECT_EQ(mendLineEnds(u"a\n\r\nb\r\n"), u"a\r\n\r\nb\r\n");
    EXPECT_EQ(mendLineEnds(u"a\r\nb\n\nc\n"), u"a\r\nb\r\n \r\nc\r\n");
}

TEST(LineEnds, BlankLinesAndTextWithoutLineEndsAreUnchanged)
{
    EXPECT_EQ(mendLineEnds(u""), u"");
    EXPECT_EQ(mendLineEnds(u"a"), u"a");
    EXPECT_EQ(mendLineEnds(u"a\n \n\t\nb\n"), u"a\r\n \r\n\t\r\nb\r\n");
}

} // namespace plotvue
