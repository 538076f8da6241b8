// What ends the process: a run-time error, or a reader that never returns.
#pragma once

#include "capture/text.h"

#include <cstdint>

namespace plotvue {

// A run-time error: division by zero, a subscript outside its table, a substring that starts before position
// 1 or has a negative length, a value outside its type, a file that cannot be read or written. It is thrown
// where it happens, caught around the event that led to it, and shown as the platform's error report.
struct Failure {
    Text sentence;    // for the person at the screen, with its full stop
    TextSpan where{}; // the part of the capture that was being read, valid while the capture is; empty: none
};

// Calls `read`, which reads a part of the capture. A failure that names no part yet gets this one.
template <typename Read>
decltype(auto) locateFailure(TextSpan part, Read read)
{
    try {
        return read();
    } catch (Failure& failure) {
        if (failure.where.empty())
            failure.where = part;
        throw;
    }
}

// "Line 7 of the copied text: " for a part that begins on line 7; empty when `part` is not in the capture.
Text lineName(TextSpan capture, TextSpan part);

// Calls `read`, which reads the capture. The sentence of a failure that names a part gets lineName() in
// front. Lines count from 1, empty ones included.
template <typename Read>
decltype(auto) nameFailedLine(TextSpan capture, Read read)
{
    try {
        return read();
    } catch (const Failure& failure) {
        throw Failure{lineName(capture, failure.where) + failure.sentence};
    }
}

// Thrown where the reader of a monthly screen would wait for more lines for ever: the text has too few.
struct TooFewLines {
    int lines = 0; // of the text, without the empty ones
};

// `value` as a whole number of 16 or 32 bits; a half is rounded to the even neighbour.
// Throws Failure when it does not fit. `what` begins the sentence: "The rank".
std::int16_t toInt16(double value, TextSpan what);
std::int32_t toInt32(double value, TextSpan what);

// `value` itself. Throws Failure when it is infinite or not a number.
double finite(double value);

} // namespace plotvue
