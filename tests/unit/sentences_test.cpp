// What the error report says: a sentence that tells the manager what is wrong with the screen.
#include "app/recognition.h"
#include "app/screens.h"
#include "capture/failure.h"
#include "capture/month.h"
#include "history/monthlyreader.h"
#include "support/capturebuilder.h"
#include "support/session.h"

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

// What the error report says when `other` replaces the text `old` of the G/L history's sample.
Text saidOfHistory(TextSpan old, TextSpan other)
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

// The last event after PlotVue starts with this capture: the error report.
std::string reported(TextSpan capture)
{
    test::Session session;
    session.start(capture);
    const std::vector<std::string> events = session.events();
    return events.empty() ? "" : events.back();
}

// The sample, with its line of this number replaced. Lines count from 1.
Text sampleWith(std::string_view name, std::size_t line, TextSpan text)
{
    Text capture = test::sample(name);
    std::size_t from = 0;
    for (std::size_t i = 1; i < line; ++i)
        from = capture.find(u'\n', from) + 1;
    return capture.replace(from, capture.find(u'\r', from) - from, text);
}

TEST(Sentences, NameTheLineOfTheCopiedText)
{
    EXPECT_EQ(reported(sampleWith("product", 9, u"JUL99         1 9E999")),
              "error Line 9 of the copied text: A figure on the screen is too large to be worked with.");
    EXPECT_EQ(
        reported(sampleWith("glhistory", 4, u"ACTIVITY FROM 01/9E99")),
        "error Line 4 of the copied text: The first year on the screen is too large to be worked with.");
    EXPECT_EQ(
        reported(sampleWith("monthtomonth", 6, u"RANK:101")),
        "error Line 6 of the copied text: A rank on the screen is outside 1 to 100, which is all that can be "
        "listed.");
    EXPECT_EQ(reported(sampleWith("salesmencategories", 2, u"GROUPS:01 SCOUNT:24")),
              "error Line 2 of the copied text: The count of salesmen on the screen is outside 0 to 23, "
              "which is all "
              "that can be charted.");
    EXPECT_EQ(reported(sampleWith("salesmencategories", 5, u"0115 9E999;")),
              "error Line 5 of the copied text: A figure on the screen is too large to be worked with.");
}

TEST(Sentences, CountEmptyLinesToo)
{
    EXPECT_EQ(reported(u"QXM21SXC\r\n\r\n\r\nGROUPS:01 SCOUNT:24\r\n"),
              "error Line 4 of the copied text: The count of salesmen on the screen is outside 0 to 23, "
              "which is all "
              "that can be charted.");
}

TEST(Sentences, NameNoLineWhereNoneIsToBlame)
{
    const Text capture = u"A\r\nB\r\n";
    EXPECT_EQ(lineName(capture, TextSpan(capture).substr(3)), u"Line 2 of the copied text: ");
    EXPECT_EQ(lineName(capture, u"B"), u"") << "no part of it";
    EXPECT_EQ(lineName(capture, {}), u"");
    EXPECT_EQ(said([&] { nameFailedLine(capture, [] { throw Failure{u"It is so."}; }); }), u"It is so.");
}

TEST(Sentences, NameTheInnermostLine)
{
    const Text capture = u"A\r\nB\r\n";
    const TextSpan text = capture;
    EXPECT_EQ(said([&] {
                  nameFailedLine(text, [&] {
                      locateFailure(
                          text, [&] { locateFailure(text.substr(3), [] { throw Failure{u"It is so."}; }); });
                  });
              }),
              u"Line 2 of the copied text: It is so.");
}

} // namespace
} // namespace plotvue
