// A platform in memory, for tests: it displays nothing, and the test sets its answers.
#pragma once

#include "platform/platform.h"

namespace plotvue {

class RecordingPlatform : public Platform {
public:
    Text clipboard; // empty: no text

    // The answer to the printer dialog; by default it is cancelled.
    struct Printer {
        enum class Answer {
            Cancel,
            Accept,
            Fail
        } answer = Answer::Cancel; // Fail: accepts one copy, which cannot be printed
        int copies = 1;            // for Accept
    } printer;

    std::unique_ptr<NativeWindow> build(std::shared_ptr<Controls> controls) override;
    int choosePrinter(NativeWindow& window) override;

protected:
    Text readClipboard() override { return clipboard; }
    void showMessage(TextSpan, TextSpan) override {} // returns at once
    void reportError(TextSpan) override {}
    void waitForMoreLines(int) override {}
    void finish() override {}
    void printWindow(NativeWindow& window) override;
    void copyText(TextSpan) override {} // as on the desktop, the captured screen remains the clipboard's text
};

} // namespace plotvue
