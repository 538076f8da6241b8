// A monthly screen cut into its lines.
#pragma once

#include "capture/text.h"

#include <array>

namespace plotvue {

// The lines of a monthly capture, numbered 1 to 23; the first 19 are read, each with its carriage return,
// lines 20 to 23 are empty. The views point into the capture.
class ScreenLines {
public:
    static constexpr int read = 19;
    static constexpr int capacity = 23;

    // Cuts the capture. Blank lines vanish: after each line, characters up to and including the carriage
    // return's code are dropped. A text without a carriage return is cut after 81 characters.
    explicit ScreenLines(TextSpan capture);

    // Throws Failure for a number outside 1 to 23.
    TextSpan operator[](Position number) const;

    // The underline of the column headings: the last line cut or following (2 to 20) before which "-----"
    // was found at position 1 to 29 of the rest of the text; 0 when there is none.
    int dashLine() const { return dashLine_; }

    // Lines cut before the text ran out: 19 for a whole capture.
    int count() const { return count_; }

    // Throws EndlessRead when the text ran out, at the latest after line 19: the reader's dropping step has
    // no end-of-text test, and callers rely on being told so instead of spinning.
    void requireAll() const;

private:
    std::array<TextSpan, capacity + 1> lines_{};
    int dashLine_ = 0;
    int count_ = 0;
    bool ranOut_ = false;
};

// Cuts one line off the front of `rest`, carriage return included, or 81 characters when there is none.
TextSpan cutLine(TextSpan& rest);

// Drops the characters up to and including the carriage return's code from the front of `rest`.
void dropControls(TextSpan& rest);

} // namespace plotvue
