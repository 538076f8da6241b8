// The desktop platform with message boxes that return at once, and a window with every kind of control.
#pragma once

#include "desktop/desktopplatform.h"
#include "desktop/desktopwindow.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace plotvue::test {

class PlayedDesktop : public DesktopPlatform {
public:
    std::vector<Text> messages;
    std::vector<std::string> endings; // "end", "spin" (a wait for more lines), or the sentence of an error

    // Shows and hides windows now. Without this call, that happens on return to the event loop.
    void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); }

    void message(TextSpan, TextSpan text) override
    {
        settle();
        messages.emplace_back(text);
    }

protected:
    void reportError(TextSpan sentence) override { endings.emplace_back(sentence.begin(), sentence.end()); }
    void waitForMoreLines(int) override { endings.emplace_back("spin"); }
    void finish() override { endings.emplace_back("end"); }
};

// Counts how often the widget is painted on which it is installed as an event filter.
struct Paintings : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

inline Declaration everyControl()
{
    return {
        .name = "every",
        .caption = u"Every control",
        .content = {
            Panel::Direction::Row,
            {column({{Label{.name = "Label1", .text = u"R&D\r", .font = {.points = 12, .bold = true}}},
                     {TextBox{.name = "txt", .spokenName = u"Summary"}},
                     {ListBox{.name = "List1", .spokenName = u"Screens", .items = {u"One", u"Two"}}},
                     row({{PictureBox{
                              .name = "Picture1", .spokenName = u"Gain", .symbol = PictureBox::Symbol::Gain}},
                          {GridBox{.name = "Grid1",
                                   .spokenName = u"PlotData",
                                   .format = u"<Rank |Name        |Total  ",
                                   .figures = {2}},
                           1}}),
                     {ChartBox{.name = "Chart1", .chart = {.titles = {{2, u"By design"}}}}, 1}},
                    1),
             column({{OptionFrame{.name = "Frame1",
                                  .caption = u"Months",
                                  .spokenName = {},
                                  .group = "opt",
                                  .options = {{1, u"24 Month"}, {0, u"12 Month"}},
                                  .chosen = 0}},
                     {OptionFrame{.name = "Frame2",
                                  .caption = {},
                                  .spokenName = u"Groups",
                                  .group = "opt",
                                  .options = {{5, u"A & B"}, {6, u"C"}, {7, u"D"}},
                                  .chosen = 5}},
                     {Space{}, 1},
                     {Button{.name = "cmdGo", .caption = u"&Go", .shortcut = u"F5, Ctrl+G"}},
                     {Button{.name = "cmdBack",
                             .caption = {},
                             .spokenName = u"Back",
                             .picture = Button::Picture::Arrow}}})}}};
}

class DesktopTest : public testing::Test, private ControlsOwner {
protected:
    struct Built {
        std::shared_ptr<Controls> controls;
        std::unique_ptr<NativeWindow> window;

        WindowWidget& widget() const { return static_cast<DesktopWindow&>(*window).widget(); }
    };

    Built build(const Declaration& declaration = everyControl())
    {
        ControlsOwner& owner = *this;
        const auto controls = std::make_shared<Controls>(declaration, owner);
        return {controls, platform.build(controls)};
    }

    Built shown(const Declaration& declaration = everyControl())
    {
        Built built = build(declaration);
        built.window->show();
        platform.settle();
        return built;
    }

    static void type(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers), release(QEvent::KeyRelease, key, modifiers);
        QCoreApplication::sendEvent(&widget, &press);
        QCoreApplication::sendEvent(&widget, &release);
    }

    PlayedDesktop platform;
    std::vector<std::string> ran; // "cmdGo 0": the control and its index; "close"
    std::function<void()> onOperated = [] {};

private:
    void operated(Name control, int index) override
    {
        ran.push_back(std::string(control) + ' ' + std::to_string(index));
        onOperated();
    }
    void closed() override { ran.emplace_back("close"); }
};

} // namespace plotvue::test
