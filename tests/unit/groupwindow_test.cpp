// What both salesman/category windows do alike.
#include "group/frmqxm21cxs.h"
#include "group/frmqxm21sxc.h"
#include "groupfixture.h"

namespace plotvue::test {
namespace {

struct Screen {
    Name window;
    TextSpan identifier;
};

class GroupWindows : public testing::TestWithParam<Screen> {
protected:
    Session session;
    const Name window = GetParam().window;
    const std::string name{window};

    CaptureBuilder screen(std::size_t groups, std::size_t salesmen = 2)
    {
        return groupScreen(GetParam().identifier, groups, salesmen);
    }
};

TEST_P(GroupWindows, AnotherScreenLeavesTheWindowAsItIs)
{
    session.start(screen(4).text());
    const auto before = session.chart(window).series;
    session.events();
    for (const TextSpan foreign : {u"", u"QXM31H", u"qxm21sxc qxm21cxs"}) {
        session.copy(foreign);
        session.choose(window, "optSales", Profit);
        EXPECT_EQ(session.events(), (Events{"hide " + name, "show startup"}));
        EXPECT_EQ(session.chart(window).series, before);
        session.copy(screen(4).text());
        session.press("startup", "Command1");
        EXPECT_EQ(session.events(), (Events{"hide startup", "show " + name}));
    }
}

TEST_P(GroupWindows, ExitKeepsTheChart)
{
    session.start(screen(4).text());
    const auto before = session.chart(window).series;
    session.events();
    session.press(window, "cmdExit");
    EXPECT_EQ(session.events(), (Events{"hide " + name, "show startup"}));
    session.copy(screen(4, 1).text());
    session.press("startup", "Command1");
    EXPECT_EQ(session.events(), (Events{"hide startup", "show " + name}));
    EXPECT_EQ(session.chart(window).series, before);
    session.press(window, "cmdRefresh");
    EXPECT_NE(session.chart(window).series, before);
}

TEST_P(GroupWindows, TheTitleBarIsAWayOut)
{
    session.start(screen(4).text());
    session.events();
    session.close(window);
    EXPECT_EQ(session.events(), (Events{"hide " + name, "show startup"}));
    EXPECT_TRUE(session.loaded(window));
}

TEST_P(GroupWindows, PrintsACopyAJob)
{
    session.start(screen(4).text());
    session.events();
    session.press(window, "cmdPrint");
    EXPECT_EQ(session.events(), Events{});
    session.platform.printer = {.answer = RecordingPlatform::Printer::Answer::Accept, .copies = 3};
    session.press(window, "cmdPrint");
    EXPECT_EQ(session.events(), Events(3, "print " + name));
    session.platform.printer = {.answer = RecordingPlatform::Printer::Answer::Fail};
    session.press(window, "cmdPrint");
    EXPECT_EQ(session.events(), Events{});
}

TEST_P(GroupWindows, TwentyThreeSalesmenAreTheMost)
{
    session.start(screen(4, 23).text());
    EXPECT_EQ(session.events(), opening(window));
    EXPECT_EQ(session.chart(window).labels.size(), 24u);
    EXPECT_EQ(session.chart(window).labels[22], u"02_23");
    session.copy(screen(4, 24).text());
    session.press(window, "cmdRefresh");
    EXPECT_EQ(session.events(), Events{"error Line 2 of the copied text: The count of salesmen on the screen "
                                       "is outside 0 to 23, which is "
                                       "all that can be charted."});
}

TEST_P(GroupWindows, ACountBelowZeroOrBeyondTheTypeIsARunTimeError)
{
    for (const TextSpan count : {u"       -1", u"000040000"}) {
        Session broken;
        CaptureBuilder capture = screen(2);
        broken.start(capture.put(2, 18, count).text());
        EXPECT_TRUE(endsInAnError(broken)) << toUtf8(count);
    }
}

TEST_P(GroupWindows, FewerGroupsThanNoneAreNone)
{
    CaptureBuilder capture = screen(2);
    session.start(capture.put(2, 8, u"-1").text());
    EXPECT_EQ(session.events(), opening(window));
    EXPECT_EQ(session.chart(window).series[0], (Numbers{0, 0, 0}));
    EXPECT_EQ(session.chart(window).labels[1], u"02_02");
}

TEST_P(GroupWindows, ACarriageReturnAloneEndsALine)
{
    session.start(screen(4).text());
    const auto series = session.chart(window).series;
    session.copy(screen(4).text(u"\r"));
    session.press(window, "cmdRefresh");
    EXPECT_EQ(session.chart(window).series, series);
    EXPECT_EQ(session.chart(window).titles.at(2), u"OCT  1999");
}

TEST_P(GroupWindows, BlankLinesAreNone)
{
    session.start(screen(4).text());
    const auto series = session.chart(window).series;
    session.copy(screen(4).text(u"\r\n\r\n\t\n"));
    session.press(window, "cmdRefresh");
    EXPECT_EQ(session.chart(window).series, series);
    EXPECT_EQ(session.chart(window).labels, (Texts{u"02_01", u"02_02", u""}));
}

TEST_P(GroupWindows, WithoutALineEndALineHas81Characters)
{
    const auto padded = [](TextSpan line) { return Text(line) + Text(81 - line.size(), u' '); };
    session.start(padded(GetParam().identifier) + padded(u"GROUPS:01 SCOUNT:2         ;FUELS;") +
                  padded(u"MONTH:OCT  1999") + padded(u"0301 7;8;9;") + u"0302 17;18;19;");
    EXPECT_EQ(session.chart(window).titles.at(2), u"OCT  1999");
    EXPECT_EQ(session.chart(window).labels, (Texts{u"03_01", u"03_02", u""}));
    EXPECT_EQ(session.chart(window).series[0], (Numbers{7, 17, 0}));
}

TEST_P(GroupWindows, SalesmenBehindTheEndOfTheTextAreEmpty)
{
    const Text whole = screen(1, 3).text();
    session.start(whole.substr(0, whole.find(u"0202 ")));
    EXPECT_EQ(session.events(), opening(window));
    EXPECT_EQ(session.chart(window).labels, (Texts{u"02_01", u"_", u"_", u""}));
    EXPECT_EQ(session.chart(window).series[0], (Numbers{111, 0, 0, 0}));
}

TEST_P(GroupWindows, ACaptureCutAnywhereIsNoError)
{
    const Text whole = screen(4).text();
    session.start(whole);
    const Events opened = session.events();
    for (std::size_t length = GetParam().identifier.size(); length < whole.size(); ++length) {
        session.copy(TextSpan(whole).substr(0, length));
        session.press(window, "cmdRefresh");
        ASSERT_EQ(session.events(), Events{}) << length;
    }
}

TEST_P(GroupWindows, TheSampleOpensIt)
{
    session.start(sample(window == sxc ? "salesmencategories" : "categoriessalesmen"));
    EXPECT_EQ(session.events(), opening(window));
    EXPECT_EQ(session.chart(window).labels,
              (Texts{u"01_14", u"01_22", u"01_31", u"02_08", u"02_17", u"02_40", u"03_05", u""}));
    EXPECT_EQ(session.chart(window).titles.at(2), u"OCT 1999 ");
    // The sales of the second salesman: one window shows each of the four groups, the other their total.
    const auto& series = session.chart(window).series;
    if (window == sxc)
        EXPECT_EQ((Numbers{series[0][1], series[1][1], series[2][1], series[3][1]}),
                  (Numbers{45404, 12609, 16722, 42644}));
    else
        EXPECT_EQ(series[0][1], 45404 + 12609 + 16722 + 42644);
}

INSTANTIATE_TEST_SUITE_P(Both, GroupWindows,
                         testing::Values(Screen{sxc, u"QXM21SXC"}, Screen{cxs, u"QXM21CXS"}),
                         [](const auto& tested) { return std::string(tested.param.window); });

template <typename Kind>
Texts frames()
{
    struct Open : Kind {
        using Kind::declare;
        using Kind::Kind;
    };
    RecordingPlatform platform;
    Startup startup(platform);
    Texts result;
    forEachControl(Open(platform, startup).declare().content, [&](const auto& control) {
        if constexpr (std::is_same_v<std::decay_t<decltype(control)>, OptionFrame>)
            result.push_back(fromUtf8(control.name) + u": " + Text(control.caption));
    });
    return result;
}

TEST(GroupFrames, HaveTheirCaptions)
{
    EXPECT_EQ(frames<frmQXM21SXC>(), (Texts{u"Frame1: Data Type"}));
    EXPECT_EQ(frames<frmQXM21CXS>(), (Texts{u"Frame1: Data Type", u"Frame2: Groups"}));
}

} // namespace
} // namespace plotvue::test
