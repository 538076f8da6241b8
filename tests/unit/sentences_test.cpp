// What the error report says: a sentence that tells the manager what is wrong with the screen.
#include "app/recognition.h"
#include "capture/failure.h"
#include "capture/month.h"
#include "history/reading.h"
#include "history/screens.h"
#include "support/capturebuilder.h"

#include <gtest/gtest.h>

namespace plotvue {
namespace {

template <typename Action>
Text said(Action action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.sentence;
    }
    return u"";
}

// What happens when the G/L history has another text in the place of one of its own.
Text saidOfHistory(TextView old, TextView other)
{
    Text capture = test::sample("glhistory");
    capture.replace(capture.find(old), old.size(), other);
    return said([&] { readMonths(frmGLarch, capture, 1, 12, frmGLarch.types[0]); });
}

const Text farDown(32767, u' ');

TEST(Sentences, OfAScreenThatIsCutOff)
{
    EXPECT_EQ(said([] { mid(u"A", 0, 1); }),
              u"The screen is cut off: a text would begin before its first character.");
    EXPECT_EQ(said([] { mid(u"A", 1, -1); }),
              u"The screen is cut off: a line is too short for the text in it.");
}

TEST(Sentences, OfAMonthWithoutAName)
{
    EXPECT_EQ(said([] { elapsedPart(0, 1); }), u"The newest month on the screen has no month name, so the "
                                               u"rest of the month cannot be projected.");
}

TEST(Sentences, OfFiguresThatAreTooLarge)
{
    EXPECT_EQ(saidOfHistory(u"-1,277,492.50", u"9,999,999,999"),
              u"An amount on the screen is too large to be worked with.");
    EXPECT_EQ(saidOfHistory(u"1995", u"9E99"),
              u"The first year on the screen is too large to be worked with.");
}

TEST(Sentences, OfTextThatIsTooLong)
{
    EXPECT_EQ(said([] { accept(frmCustP2, farDown + u"YTD"); }),
              u"The copied text is too large to be worked with.");
    EXPECT_EQ(said([] { recognise(u"QXM12P2" + farDown + u"0"); }),
              u"The copied text is too large to be worked with.");
}

} // namespace
} // namespace plotvue
