// The top-level widget of a window. It outlives its view by the rest of the event in which that goes.
#pragma once

#include "platform/view.h"

#include <QWidget>

namespace plotvue {

class Window : public QWidget {
    Q_OBJECT

public:
    Window(const Handlers& handlers, std::function<void()> close);

    // Runs the handler of a control that has one. The handler may unload the window.
    void run(Name control, int index);

    // The window's last act: gone from the screen at once, deleted when the event is over.
    void retire();

protected:
    void closeEvent(QCloseEvent* event) override; // never closes by itself

private:
    Handlers handlers_;
    std::function<void()> close_;
};

} // namespace plotvue
