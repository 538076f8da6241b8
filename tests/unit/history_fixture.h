// What the tests of the monthly windows share.
#pragma once

#include "app/screens.h"
#include "history/window.h"
#include "support/capturebuilder.h"
#include "support/monthlytable.h"
#include "support/session.h"

#include <gtest/gtest.h>

namespace plotvue::test {

using Events = std::vector<std::string>;
using Numbers = std::vector<double>;
using Texts = std::vector<Text>;

struct PeriodOption {
    int index, months;
};
inline constexpr PeriodOption periodOptions[] = {{0, 13}, {1, 25}, {2, 6}};

// Digits without a gap: laid over a row they show which columns a figure is read from.
inline constexpr TextSpan ruler = u"3141592653589793238462643383279502";

inline HostScreen hostScreen(std::string_view name)
{
    return HostScreen(sample(name));
}

// What happens when the program starts with a capture that opens the window.
inline Events opening(const std::string& window)
{
    return {"load startup", "show startup", "hide startup", "load " + window, "show " + window};
}

inline Texts fromTheTop(const OptionGroup& options)
{
    Texts captions;
    for (const OptionGroup::Entry& option : options.options)
        captions.push_back(option.caption);
    return captions;
}

inline std::vector<int> indicesFromTheTop(const OptionGroup& options)
{
    std::vector<int> indices;
    for (const OptionGroup::Entry& option : options.options)
        indices.push_back(option.index);
    return indices;
}

inline Texts frameCaptions(const MonthlyScreen& screen)
{
    Texts captions;
    forEachControl(declareHistoryWindow(screen).content, [&](const auto& control) {
        if constexpr (std::is_same_v<std::decay_t<decltype(control)>, OptionFrame>)
            captions.emplace_back(control.caption);
    });
    return captions;
}

inline void expectButtons(Session& session, Name window)
{
    EXPECT_EQ(session.text(window, "cmdPrint"), u"&Print");
    EXPECT_EQ(session.text(window, "cmdRefresh"), u"&Refresh");
    EXPECT_EQ(session.text(window, "cmdExit"), u"E&xit");
}

inline void expectMonthsFrame(Session& session, Name window)
{
    const OptionGroup periods = session.options(window, "opt12");
    EXPECT_EQ(fromTheTop(periods), (Texts{u"24", u"12", u"6"}));
    EXPECT_EQ(indicesFromTheTop(periods), (std::vector{1, 0, 2}));
    EXPECT_EQ(periods.chosen, std::vector{0});
}

// The value of screen month `month`, the newest being 1, in a chart of `months` months.
inline double valueOf(const Chart& chart, int months, int month, std::size_t series = 0)
{
    return chart.series.at(series).at(static_cast<std::size_t>(months - month));
}

// Exit leaves the window loaded with its chart, and the start-up window brings it back as it was.
inline void expectExitKeepsTheChart(Session& session, const std::string& window, TextSpan otherCapture)
{
    const auto before = session.chart(window).series;
    session.events();
    session.press(window, "cmdExit");
    EXPECT_EQ(session.events(), (Events{"hide " + window, "show startup"}));
    session.copy(otherCapture);
    session.press("startup", "Command1");
    EXPECT_EQ(session.events(), (Events{"hide startup", "show " + window}));
    EXPECT_EQ(session.chart(window).series, before);
    session.press(window, "cmdRefresh");
    EXPECT_NE(session.chart(window).series, before);
}

// A capture of another screen hides the window, with its chart as it was; the start-up window comes back.
inline void expectForeignCaptureLeaves(Session& session, const std::string& window, TextSpan foreign)
{
    const Chart before = session.chart(window);
    session.events();
    session.copy(foreign);
    session.choose(window, "opt12", 1);
    EXPECT_EQ(session.events(), (Events{"hide " + window, "show startup"}));
    EXPECT_FALSE(session.visible(window));
    EXPECT_EQ(session.chart(window).series, before.series);
    EXPECT_EQ(session.chart(window).labels, before.labels);
    EXPECT_EQ(session.chart(window).titles, before.titles);
}

// The reader never returns from a capture that ends with its 19th line; one line more, and it does.
inline void expectShortCaptureSpins(const std::string& window, std::string_view sampleName)
{
    const Text whole = sample(sampleName);
    std::size_t end = 0;
    for (int line = 1; line <= 19; ++line)
        end = whole.find(u'\n', end) + 1;
    Session spinning;
    spinning.start(whole.substr(0, end));
    EXPECT_EQ(spinning.events(),
              (Events{"load startup", "show startup", "hide startup", "load " + window, "spin"}));
    Session reading;
    reading.start(whole.substr(0, end) + u" ");
    EXPECT_EQ(reading.events(), opening(window));
}

} // namespace plotvue::test
