#include "chart/filename.h"

#include <gtest/gtest.h>

namespace plotvue {

TEST(FileName, KeepsWhatAFileNameCanHold)
{
    EXPECT_EQ(fileName(u"Sales, Product 4711 (Łódź) 50% & more"), u"Sales, Product 4711 (Łódź) 50% & more");
}

TEST(FileName, HasNoReservedCharacters)
{
    EXPECT_EQ(fileName(u"G/P %, Product: A\\B"), u"G-P %, Product A-B");
    EXPECT_EQ(fileName(u"a*b?c\"d<e>f|g"), u"a b c d e f g");
    EXPECT_EQ(fileName(u"a\r\nb\tc\x7F"), u"abc");
}

TEST(FileName, HasNoBlanksOrDotsAtItsEndsThatASystemWouldDropOrHide)
{
    EXPECT_EQ(fileName(u" Sales . . "), u"Sales");
    EXPECT_EQ(fileName(u"..hidden"), u"hidden");
    EXPECT_EQ(fileName(u". .a"), u"a");
    EXPECT_EQ(fileName(u"ACME INC."), u"ACME INC");
}

TEST(FileName, IsNeverADevice)
{
    for (const TextSpan device :
         {u"CON", u"prn", u"Aux", u"NUL", u"COM1", u"lpt9", u"COM\u00B2", u"CONIN$", u"NUL.txt", u"con .x"})
        EXPECT_EQ(fileName(device), u"PlotVue " + Text(device));
    for (const TextSpan other : {u"CONSUMER", u"COM", u"COM10", u"LPTX", u"A NUL"})
        EXPECT_EQ(fileName(other), other);
}

TEST(FileName, IsNeverEmpty)
{
    EXPECT_EQ(fileName(u""), u"PlotVue");
    EXPECT_EQ(fileName(u" .: ?"), u"PlotVue");
    EXPECT_EQ(fileName(u"\xD800\xDC00"), u"\xD800\xDC00");
    EXPECT_EQ(fileName(u"\xDC00\xD800"), u"PlotVue");
}

TEST(FileName, HasAtMost80Characters)
{
    EXPECT_EQ(fileName(Text(81, u'a')), Text(80, u'a'));
    EXPECT_EQ(fileName(Text(79, u'a') + u" b"), Text(79, u'a'));
    const Text pair = u"\xD83D\xDE00";
    EXPECT_EQ(fileName(Text(79, u'a') + pair), Text(79, u'a')) << "half a character is no character";
}

} // namespace plotvue
