// The top-level widget of a window. It outlives its window by the rest of the event in which that goes.
#pragma once

#include "platform/controls.h"

#include <QWidget>

#include <memory>

namespace plotvue {

class WindowWidget : public QWidget {
    Q_OBJECT

public:
    explicit WindowWidget(std::shared_ptr<Controls> controls) : controls_(std::move(controls)) {}

    Controls& controls() const { return *controls_; }

    // The widget's last act: gone from the screen at once, deleted when the event is over.
    void retire();

protected:
    void closeEvent(QCloseEvent* event) override; // never closes by itself

private:
    std::shared_ptr<Controls> controls_; // the widgets inside show them as long as they live
};

} // namespace plotvue
