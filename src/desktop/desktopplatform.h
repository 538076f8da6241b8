// The platform of real desktops. A QApplication must exist and outlive it. Tests override the message boxes,
// the printer dialog and the functions that end the process.
#pragma once

#include "desktop/doubleclicks.h"
#include "desktop/menus.h"
#include "desktop/presenter.h"
#include "desktop/printing.h"
#include "platform/platform.h"

#include <optional>

namespace plotvue {

class DesktopPlatform : public Platform {
public:
    DesktopPlatform();
    ~DesktopPlatform() override;

    Text clipboardText() override;
    std::unique_ptr<NativeWindow> build(std::shared_ptr<Controls> controls) override;
    double choosePrinter(NativeWindow& window) override;

    // Shows and hides windows now instead of on return to the event loop.
    void settle() { presenter_.settle(); }

protected:
    void showMessage(TextSpan title, TextSpan text) override;
    void printWindow(NativeWindow& window) override;
    void copyText(TextSpan text) override;
    void reportError(TextSpan sentence) override;
    void waitForMoreLines(int lines) override;
    void finish() override;

private:
    // The clipboard's text if the current event has read it already. The start-up window and the window that
    // it opens both read the clipboard, but its owner is asked only once.
    std::optional<Text> readInThisEvent_;
    // Ends the process at once, or when the toolkit has shut down if a clipboard manager is to take what was
    // copied.
    void leave(int status);

    DoubleClicks doubleClicks_;
    Presenter presenter_;
    Menus menus_{*this};
    Printing printing_;
};

} // namespace plotvue
