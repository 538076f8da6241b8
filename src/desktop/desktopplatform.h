// The platform of real desktops. A QApplication must exist and outlive it. Tests override the message boxes,
// the printer dialog and the functions that end the process.
#pragma once

#include "desktop/doubleclicks.h"
#include "desktop/menus.h"
#include "desktop/presenter.h"
#include "desktop/printing.h"
#include "platform/platform.h"

namespace plotvue {

class DesktopPlatform : public Platform {
public:
    DesktopPlatform();
    ~DesktopPlatform() override;

    std::unique_ptr<NativeWindow> build(std::shared_ptr<Controls> controls) override;
    void message(TextSpan title, TextSpan text) override;
    int choosePrinter(NativeWindow& window) override;
    void print(NativeWindow& window) override;

protected:
    Text readClipboard() override;
    void copyText(TextSpan text) override;
    void reportError(TextSpan sentence) override;
    void waitForMoreLines(int lines) override;
    void finish() override;

private:
    // Ends the process at once, or when the toolkit has shut down if a clipboard manager is to take what was
    // copied.
    void leave(int status);

    DoubleClicks doubleClicks_;
    Presenter presenter_;
    Menus menus_{*this};
    Printing printing_;
};

} // namespace plotvue
