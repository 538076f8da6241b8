// The month table and the elapsed part of a month.
#pragma once

#include "capture/text.h"

namespace plotvue {

// Days of the month whose three-letter name is given, by search in the month table: 28 for FEB in every
// year, 31 for an empty name, 0 for a name that is not found.
int daysOfMonth(TextSpan name);

// The elapsed part of a month of `days` days on day `day`: 1 - (days - day) / days, and 1 where that is 0.
// Throws Failure when `days` is 0.
double elapsedPart(int days, double day);

} // namespace plotvue
