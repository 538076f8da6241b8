#include "support/chartwindow.h"

#include <gtest/gtest.h>

namespace plotvue::test {

Events ChartWindow::open(TextSpan capture)
{
    session.start(capture);
    return session.events();
}

Events ChartWindow::click(TextSpan capture, Name control, int option)
{
    session.events();
    session.copy(capture);
    if (option == noOption)
        session.press(window, control);
    else
        session.choose(window, control, option);
    return session.events();
}

Events ChartWindow::comeBack(TextSpan capture)
{
    session.events();
    session.copy(capture);
    session.press("startup", "Command1");
    return session.events();
}

void ChartWindow::choose(int type, int period)
{
    if (session.hasControl(window, "optSales"))
        session.choose(window, "optSales", type);
    if (session.hasControl(window, "opt12"))
        session.choose(window, "opt12", period);
}

Options ChartWindow::options(Name group)
{
    Options found;
    for (const auto& option : session.options(window, group).options) {
        EXPECT_TRUE(option.visible);
        found.emplace_back(option.index, option.caption);
    }
    return found;
}

void ChartWindow::expectButtons()
{
    EXPECT_EQ(session.text(window, "cmdPrint"), u"&Print");
    EXPECT_EQ(session.text(window, "cmdRefresh"), u"&Refresh");
    EXPECT_EQ(session.text(window, "cmdExit"), u"E&xit");
}

void ChartWindow::expectRefusal(TextSpan capture, Name control, int option)
{
    const auto before = chart();
    EXPECT_EQ(click(capture, control, option), left());
    EXPECT_FALSE(session.visible(window));
    EXPECT_TRUE(chart() == before);
    EXPECT_EQ(comeBack(screen.text()), back());
    EXPECT_TRUE(chart() == before);
}

void ChartWindow::expectExitKeepsTheChart(TextSpan otherCapture)
{
    const auto chosen = [&] {
        std::vector<std::vector<int>> result;
        for (const Name group : {"opt12", "optSales"})
            if (session.hasControl(window, group))
                result.push_back(session.options(window, group).chosen);
        return result;
    };
    const auto before = chart();
    const auto chosenBefore = chosen();
    session.events();
    for (const bool titleBar : {true, false}) {
        titleBar ? session.close(window) : session.press(window, "cmdExit");
        EXPECT_EQ(session.events(), left());
        EXPECT_TRUE(session.loaded(window));
        EXPECT_EQ(comeBack(otherCapture), back());
        EXPECT_TRUE(chart() == before);
        EXPECT_EQ(chosen(), chosenBefore);
    }
    EXPECT_EQ(refresh(otherCapture), Events{});
    EXPECT_NE(chart().series, before.series);
}

void ChartWindow::expectPrints()
{
    using Answer = RecordingPlatform::Printer::Answer;
    session.events();
    for (const Answer answer : {Answer::Cancel, Answer::Fail, Answer::Accept}) {
        session.platform.printer = {answer, 3};
        session.press(window, "cmdPrint");
        EXPECT_EQ(session.events(), Events(answer == Answer::Accept ? 3 : 0, "print " + name));
        EXPECT_TRUE(session.visible(window));
        EXPECT_FALSE(session.platform.over());
    }
}

} // namespace plotvue::test
