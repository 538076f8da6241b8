// A window on the desktop. Its widgets are created when it is first displayed.
#pragma once

#include "desktop/windowwidget.h"
#include "platform/platform.h"

namespace plotvue {

class Menus;
class Presenter;

class DesktopWindow : public NativeWindow {
public:
    DesktopWindow(Presenter& presenter, Menus& menus, std::shared_ptr<Controls> controls);
    ~DesktopWindow() override;
    DesktopWindow(const DesktopWindow&) = delete;

    // Record the request, which settle() carries out.
    void show() override;
    void hide() override;
    bool wanted() const { return wanted_; }
    void settle();

    WindowWidget& widget(); // creates the widgets if necessary

private:
    void savePosition();
    void restorePosition();

    Presenter& presenter_;
    Menus& menus_;
    std::shared_ptr<Controls> controls_;
    WindowWidget* widget_ = nullptr; // deletes itself after retire()
    bool wanted_ = false, raise_ = false;
};

} // namespace plotvue
