// The platform in memory: it keeps what the windows show and answers as it was told to.
#pragma once

#include "platform/platform.h"

namespace plotvue {

class RecordingPlatform : public Platform {
public:
    Text clipboard; // empty: holds no text

    // How the printer dialog is answered; cancelled at the start.
    struct Printer {
        enum class Answer { Cancel, Accept, Fail } answer = Answer::Cancel;
        double copies = 1;
    } printer;

    Text clipboardText() override { return clipboard; }
    std::unique_ptr<View> build(const Declaration& declaration, const Handlers& handlers,
                                std::function<void()> close) override;
    double choosePrinter(View& view) override;

protected:
    void showMessage(TextSpan, TextSpan) override {} // acknowledged at once
    void printView(View& view) override;
    void reportError(TextSpan) override {}
    void spin(int) override {}
    void finish() override {}
};

} // namespace plotvue
