// What ends the process: the run-time errors of the system, and a reader that never returns.
#pragma once

#include "capture/text.h"

#include <cstdint>

namespace plotvue {

// A run-time error: division by zero, a subscript outside its table, a substring before position 1 or of
// negative length, a value outside its type, a file that fails. Thrown where it happens, caught around the
// event that led to it, shown as the platform's error report.
struct Failure {
    Text sentence;    // one sentence for the person at the screen, with its full stop
    TextSpan where{}; // the part of the capture that was read, as long as that lives; empty: none
};

// Reads a line, or another part of the capture: a failure that does not say where it happens happens there.
template <typename Read>
decltype(auto) readLine(TextSpan part, Read read)
{
    try {
        return read();
    } catch (Failure& failure) {
        if (failure.where.empty())
            failure.where = part;
        throw;
    }
}

// "Line 7 of the copied text: "; empty where `part` is no part of the capture.
Text lineName(TextSpan capture, TextSpan part);

// Reads a capture: the sentence of a failure in it begins with the number of the line, counted from 1, empty
// lines included, where it is known: "Line 7 of the copied text: ...".
template <typename Read>
decltype(auto) readCapture(TextSpan capture, Read read)
{
    try {
        return read();
    } catch (const Failure& failure) {
        throw Failure{lineName(capture, failure.where) + failure.sentence};
    }
}

// The line reader has run out of text: it goes on dropping characters that are not there, without end.
struct EndlessRead {
    int lines = 0; // the lines of the text that are not empty
};

// `value` as a whole number of 16 or 32 bits, a half rounded to the even neighbour.
// Throws Failure when it does not fit; `what` names it in the sentence: "The rank".
std::int16_t toInt16(double value, TextSpan what);
std::int32_t toInt32(double value, TextSpan what);

// `value` itself. Throws Failure when it is infinite or no number.
double finite(double value);

} // namespace plotvue
