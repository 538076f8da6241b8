// Numbers read from the fields of a screen, and numbers written as text.
#pragma once

#include "capture/failure.h"

namespace plotvue {

// The number with which a field begins: an optional sign, digits with at most one decimal point, and an
// exponent (E or e, with digits). Blanks, tabs and line feeds are skipped everywhere. Any other character
// ends the number, so "1,234" is 1 and "12.50-" is 12.5. A field that begins with no number is 0. Throws
// Failure when the number is too large for a double.
double leadingNumber(TextSpan field);

// The same, with commas skipped too: "1,234" is 1234.
double leadingNumberWithoutCommas(TextSpan field);

// The part as a percentage of the whole: part / whole * 100. Where the whole is 0, so is the result, and the
// part is not read, so it cannot be too large. Throws Failure when the result is too large.
template <typename ReadPart>
double percentage(double whole, const ReadPart& readPart)
{
    return whole == 0 ? 0 : finite(finite(readPart() / whole) * 100);
}

// A finite number as decimal text: at most 15 significant digits, no trailing zeros after the point, no
// exponent, "0" for zero.
Text plainNumber(double value);

// The same, with a blank in the place of the sign when the number is not negative: " 1998", "-5".
Text signedNumber(double value);

} // namespace plotvue
