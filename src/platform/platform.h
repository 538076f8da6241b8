// What the system needs of a desktop. A platform is the real desktop, or the recording one of the tests.
#pragma once

#include "capture/failure.h"
#include "platform/controls.h"
#include "platform/events.h"

#include <functional>
#include <memory>

namespace plotvue {

// Thrown by end(), so that the handler that ends the process runs no further.
struct EndOfProcess {};

// A window on the desktop.
class Window {
public:
    virtual ~Window() = default;
    virtual void show() = 0; // comes to the front when it is visible already
    virtual void hide() = 0;
};

class Platform : public EventSource {
public:
    virtual ~Platform() = default;

    // The clipboard's text; empty when it holds none.
    virtual Text clipboardText() = 0;

    // Makes the window that shows these controls, hidden.
    virtual std::unique_ptr<Window> build(std::shared_ptr<Controls> controls) = 0;

    // Shows a box with an OK button and waits for it.
    void message(TextSpan title, TextSpan text);

    // Shows the printer dialog, makes the choice the default printer and returns the number of copies.
    // Throws Failure when the dialog is cancelled or fails.
    virtual double choosePrinter(Window& window) = 0;

    // Prints the window's client area as one job. Throws Failure when that fails.
    void print(Window& window, Name name);

    [[noreturn]] void end() { throw EndOfProcess{}; }

    // Runs the handler of an event. What it throws ends the process: EndOfProcess with status 0, EndlessRead
    // with the platform's spin(), a Failure and every other exception with the error report. Afterwards no
    // handler runs any more: assistive technology reaches the windows under the last box, too.
    void run(const std::function<void()>& handler);

    bool over() const { return over_; } // the process has ended or failed, or its reader never returns

protected:
    virtual void showMessage(TextSpan title, TextSpan text) = 0;
    virtual void printWindow(Window& window) = 0;
    virtual void reportError(TextSpan sentence) = 0; // then the process ends with status 1
    virtual void
    spin(int lines) = 0;       // waits for ever; the copied text has that many lines that are not empty
    virtual void finish() = 0; // the process ends with status 0

private:
    void fail(TextSpan sentence);

    bool over_ = false;
};

} // namespace plotvue
