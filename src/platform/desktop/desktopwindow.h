// A window on the desktop. Its widgets are made when it is first seen.
#pragma once

#include "platform/desktop/windowwidget.h"
#include "platform/platform.h"

namespace plotvue {

class Presenter;

class DesktopWindow : public Window {
public:
    DesktopWindow(Presenter& presenter, std::shared_ptr<Controls> controls);
    ~DesktopWindow() override;
    DesktopWindow(const DesktopWindow&) = delete;

    // Say what is wanted; it happens when the presenter settles.
    void show() override;
    void hide() override;
    bool wanted() const { return wanted_; }
    void settle();

    WindowWidget& widget(); // made now, if it was not yet
    bool hasWidget() const { return widget_ != nullptr; }

private:
    void keepPlace();
    void takePlace();

    Presenter& presenter_;
    std::shared_ptr<Controls> controls_;
    WindowWidget* widget_ = nullptr; // deletes itself once it is retired
    bool wanted_ = false, raise_ = false;
};

} // namespace plotvue
