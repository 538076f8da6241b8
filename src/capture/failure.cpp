#include "capture/failure.h"

#include <cmath>

namespace plotvue {

namespace {

template <typename Whole>
Whole toWhole(double value, TextView what)
{
    const double rounded = std::nearbyint(value); // the default mode rounds a half to even
    // As doubles both limits are exact.
    if (!(rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Whole>::max())))
        throw Failure{Text(what) + u" is too large to be worked with."};
    return static_cast<Whole>(rounded);
}

} // namespace

std::int16_t toInt16(double value, TextView what)
{
    return toWhole<std::int16_t>(value, what);
}

std::int32_t toInt32(double value, TextView what)
{
    return toWhole<std::int32_t>(value, what);
}

double finite(double value)
{
    if (!std::isfinite(value))
        throw Failure{u"A figure worked out from the screen is too large."};
    return value;
}

} // namespace plotvue
