// The real desktop. A QApplication must exist, and outlive it. Whoever plays the person at the screen, a test
// for one, overrides the questions and the endings.
#pragma once

#include "platform/desktop/presenter.h"
#include "platform/desktop/printing.h"
#include "platform/platform.h"

#include <memory>
#include <optional>

class QApplication;

namespace plotvue {

// The application, connected with its display. Where no window can be shown, a sentence says so on standard
// error and the process ends with status 1.
std::unique_ptr<QApplication> makeApplication(int& argc, char** argv);

class DesktopPlatform : public Platform {
public:
    DesktopPlatform();
    ~DesktopPlatform() override;

    Text clipboardText() override;
    std::unique_ptr<Window> build(std::shared_ptr<Controls> controls) override;
    double choosePrinter(Window& window) override;

    // Shows and hides the windows as wanted, now rather than when control is back with the event loop.
    void settle() { presenter_.settle(); }

protected:
    void showMessage(TextSpan title, TextSpan text) override;
    void printWindow(Window& window) override;
    void reportError(TextSpan sentence) override;
    void spin(int lines) override;
    void finish() override;

private:
    // Startup asks for the clipboard, and so does the window that it shows: its owner is asked once an event.
    std::optional<Text> readInThisEvent_;
    Presenter presenter_;
    Printing printing_;
};

} // namespace plotvue
