// Numbers in the host's fields, and numbers as plain text.
#pragma once

#include "capture/text.h"

namespace plotvue {

// The number a field begins with: blanks, tabs and line feeds are skipped wherever they stand; then an
// optional sign, digits with at most one decimal point, and an exponent (E or e, with digits) are taken.
// Anything else ends the number, so "1,234" reads as 1 and "12.50-" as 12.5; no number reads as 0.
// Throws Failure when the number is too large for a double.
double leadingNumber(TextSpan field);

// The same after every comma is dropped: "1,234" reads as 1234.
double leadingNumberWithoutCommas(TextSpan field);

// Plain decimal text of a finite number: at most 15 significant digits, no trailing zeros, no exponent, "0"
// for zero.
Text plainNumber(double value);

// The same with a blank in front when not negative, the room of the sign: " 1998", "-5".
Text signedNumber(double value);

} // namespace plotvue
