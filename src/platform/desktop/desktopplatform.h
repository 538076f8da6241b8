// The real desktop. A QApplication must exist and outlive it. A test that plays the person at the screen
// overrides the boxes, the printer dialog and the ways in which the process ends.
#pragma once

#include "platform/desktop/presenter.h"
#include "platform/desktop/printing.h"
#include "platform/platform.h"

#include <memory>
#include <optional>

class QApplication;

namespace plotvue {

// The application, connected to its display. Where no window can be shown, a sentence says so on standard
// error and the process ends with status 1.
std::unique_ptr<QApplication> makeApplication(int& argc, char** argv);

class DesktopPlatform : public Platform {
public:
    DesktopPlatform();
    ~DesktopPlatform() override;

    Text clipboardText() override;
    std::unique_ptr<Window> build(std::shared_ptr<Controls> controls) override;
    double choosePrinter(Window& window) override;

    // Shows and hides the windows now; otherwise that happens when control is back with the event loop.
    void settle() { presenter_.settle(); }

protected:
    void showMessage(TextSpan title, TextSpan text) override;
    void printWindow(Window& window) override;
    void reportError(TextSpan sentence) override;
    void spin(int lines) override;
    void finish() override;

private:
    // Within one event the start-up window asks for the clipboard, and so does the window that it shows; the
    // clipboard's owner is asked once.
    std::optional<Text> readInThisEvent_;
    Presenter presenter_;
    Printing printing_;
};

} // namespace plotvue
