// What the application needs from a desktop. One implementation is the real desktop; another is in memory,
// for tests.
#pragma once

#include "capture/failure.h"
#include "platform/controls.h"

#include <functional>
#include <memory>
#include <optional>

namespace plotvue {

// Thrown by end() to leave the event handler that ends the process.
struct EndOfProcess {};

// A window on the desktop.
class NativeWindow {
public:
    virtual ~NativeWindow() = default;
    virtual void show() = 0; // brings a visible window to the front
    virtual void hide() = 0;
};

class Platform {
public:
    virtual ~Platform() = default;

    // The clipboard's text; empty if it holds none. It is read once in an event handler, however many windows
    // ask for it, because its owner may be slow.
    const Text& clipboardText();

    // Creates a hidden window that displays these controls.
    virtual std::unique_ptr<NativeWindow> build(std::shared_ptr<Controls> controls) = 0;

    // Shows a message box with an OK button and waits until it is closed. No title: that of the program.
    virtual void message(TextSpan title, TextSpan text) = 0;

    // Shows the printer dialog, makes the chosen printer the default and returns the number of copies. Throws
    // Failure if the dialog is cancelled or fails.
    virtual int choosePrinter(NativeWindow& window) = 0;

    // Prints the window's client area as one job. Throws Failure if that fails.
    virtual void print(NativeWindow& window) = 0;

    // Puts the text on the clipboard for other programs; does nothing if it is empty. clipboardText() goes on
    // returning the captured screen that was there, in this PlotVue and in others. Throws Failure if the
    // clipboard cannot be changed.
    void copy(TextSpan text);

    [[noreturn]] void end() { throw EndOfProcess{}; }

    // Runs an event handler. An exception that it throws ends the process: EndOfProcess with status 0,
    // TooFewLines through waitForMoreLines(), a Failure or any other exception with the error report. No
    // further handler runs, because assistive technology can still operate the windows under the last message
    // box.
    void run(const std::function<void()>& handler);

    bool over() const { return over_; } // true once an exception of a handler has ended the process

protected:
    virtual Text readClipboard() = 0;
    virtual void copyText(TextSpan text) = 0;
    virtual void reportError(TextSpan sentence) = 0; // shows the error and ends the process with status 1
    virtual void finish() = 0;                       // ends the process with status 0

    // Waits for ever. `lines` is the number of lines in the copied text, without empty ones.
    virtual void waitForMoreLines(int lines) = 0;

private:
    void fail(TextSpan sentence);

    std::optional<Text> clipboard_; // as the running event handler has read it
    bool over_ = false;
};

} // namespace plotvue
