// The top-level widget of a window. It lives on until the end of the event in which its window is destroyed.
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

    // Takes it from the screen at once and deletes it when the event is over.
    void retire();

protected:
    void closeEvent(QCloseEvent* event) override; // never closes by itself

private:
    std::shared_ptr<Controls> controls_; // the widgets inside refer to them as long as they live
};

} // namespace plotvue
