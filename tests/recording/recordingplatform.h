// A platform in memory, for tests: it displays nothing, the test sets its answers, and hears its events.
#pragma once

#include "recording/observed.h"

namespace plotvue {

class PlatformInMemory : public Platform {
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
    void message(TextSpan, TextSpan) override {} // returns at once
    int choosePrinter(NativeWindow& window) override;
    void print(NativeWindow& window) override;

protected:
    Text readClipboard() override { return clipboard; }
    void reportError(TextSpan) override {}
    void waitForMoreLines(int) override {}
    void finish() override {}
    void copyText(TextSpan) override {} // as on the desktop, the captured screen remains the clipboard's text
};

using RecordingPlatform = Observed<PlatformInMemory>;

} // namespace plotvue
