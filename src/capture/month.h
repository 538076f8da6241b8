// How many days a month has, and how much of it has passed.
#pragma once

#include "capture/text.h"

namespace plotvue {

// The days of the month with this three-letter name: 28 for FEB in every year, 31 for an empty name, 0 for a
// name that is not found. The name is searched in "JAN31FEB28...", so other parts of that text are found too.
int daysOfMonth(TextSpan name);

// The part of a month of `days` days that has passed on day `day`: 1 - (days - day) / days, or 1 if the
// result is 0. Throws Failure when `days` is 0.
double elapsedPart(int days, double day);

} // namespace plotvue
