#include "capture/month.h"

#include "capture/failure.h"
#include "capture/number.h"

namespace plotvue {

namespace {

constexpr TextSpan monthTable = u"JAN31FEB28MAR31APR30MAY31JUN30JUL31AUG31SEP30OCT31NOV30DEC31";

} // namespace

int daysOfMonth(TextSpan name)
{
    // For a name that is not found, positions 3 and 4 are read: "N3" is no number, so the result is 0.
    return static_cast<int>(leadingNumber(mid(monthTable, find(monthTable, name) + 3, 2)));
}

double elapsedPart(int days, double day)
{
    if (days == 0)
        throw Failure{u"The newest month on the screen has no month name, so the rest of the month cannot be "
                      u"projected."};
    const double part = 1 - (days - day) / days;
    return part == 0 ? 1 : part;
}

} // namespace plotvue
