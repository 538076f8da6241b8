// The platform in memory: it shows nothing, and a test sets what it answers.
#pragma once

#include "platform/platform.h"

namespace plotvue {

class RecordingPlatform : public Platform {
public:
    Text clipboard; // empty: holds no text

    // How the printer dialog is answered; cancelled at the start.
    struct Printer {
        enum class Answer {
            Cancel,
            Accept,
            Fail
        } answer = Answer::Cancel; // Fail: one copy, which cannot be printed
        double copies = 1;         // accepted
    } printer;

    Text clipboardText() override { return clipboard; }
    std::unique_ptr<Window> build(std::shared_ptr<Controls> controls) override;
    double choosePrinter(Window& window) override;

protected:
    void showMessage(TextSpan, TextSpan) override {} // acknowledged at once
    void reportError(TextSpan) override {}
    void spin(int) override {}
    void finish() override {}
    void printWindow(Window& window) override;
};

} // namespace plotvue
