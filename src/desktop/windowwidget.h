// The top-level widget of a window. It is deleted after the event in which its window is destroyed, because
// that may happen in a handler of one of its own buttons.
#pragma once

#include "platform/controls.h"

#include <QWidget>

#include <memory>

namespace plotvue {

class WindowWidget : public QWidget {
    Q_OBJECT

public:
    explicit WindowWidget(std::shared_ptr<Controls> controls) : controls_(std::move(controls)) {}

    ~WindowWidget() override;

    Controls& controls() const { return *controls_; }

    // Hides the widget at once and deletes it after the current event.
    void retire();

protected:
    void closeEvent(QCloseEvent* event) override; // leaves the decision to the window's handler

private:
    std::shared_ptr<Controls> controls_; // shared, because the child widgets refer to them
};

} // namespace plotvue
