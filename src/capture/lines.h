// A monthly screen cut into its lines.
#pragma once

#include "capture/text.h"

#include <array>

namespace plotvue {

// The lines of a monthly capture, as views of it. They are numbered 1 to 23: lines 1 to 19 are read, each
// with its carriage return; lines 20 to 23 are empty.
class ScreenLines {
public:
    static constexpr int read = 19;
    static constexpr int capacity = 23;

    // Cuts the capture into lines. After each one, characters with the code of the carriage return or a lower
    // one are dropped, so blank lines vanish. Text without a carriage return is cut after 81 characters.
    explicit ScreenLines(TextSpan capture);

    // Throws Failure for a number outside 1 to 23.
    TextSpan operator[](Position number) const;

    // The number of the line that underlines the column headings, 2 to 20; 0 when there is none. After each
    // line is cut, "-----" is searched at the positions 1 to 29 of the rest of the text. If it is found
    // there, the next line is the dash line. If it is found several times, the last find counts.
    int dashLine() const { return dashLine_; }

    // Throws TooFewLines when nothing is left of the text after line 19 or an earlier one.
    void requireAll() const;

private:
    std::array<TextSpan, capacity + 1> lines_{};
    int dashLine_ = 0;
    int count_ = 0;
    bool ranOut_ = false;
};

// Cuts one line off the front of `rest`, carriage return included, or 81 characters when there is none.
TextSpan cutLine(TextSpan& rest);

// Drops the characters with the code of the carriage return or a lower one from the front of `rest`.
void dropControls(TextSpan& rest);

} // namespace plotvue
