#include "capture/month.h"

#include "capture/failure.h"
#include "capture/number.h"

namespace plotvue {

namespace {

// Kept: February has 28 days (docs/kept.md).
constexpr TextSpan monthTable = u"JAN31FEB28MAR31APR30MAY31JUN30JUL31AUG31SEP30OCT31NOV30DEC31";

} // namespace

int daysOfMonth(TextSpan name)
{
    // Kept: parts of a month's name (docs/kept.md).
    return static_cast<int>(leadingNumber(mid(monthTable, find(monthTable, name) + 3, 2)));
}

double elapsedPart(int days, double day)
{
    if (days == 0)
        throw Failure{u"The newest month on the screen has no month name, so the rest of the month cannot be "
                      u"projected."};
    // Kept: a month without a day (docs/kept.md).
    const double part = 1 - (days - day) / days;
    return part == 0 ? 1 : part;
}

} // namespace plotvue
