#include "capture/failure.h"

#include "capture/number.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace plotvue {

namespace {

template <typename Whole>
Whole toWhole(double value, TextSpan what)
{
    const double rounded = std::nearbyint(value); // the default mode rounds a half to even
    // As doubles both limits are exact.
    if (!(rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Whole>::max())))
        throw Failure{Text(what) + u" is too large to be worked with."};
    return static_cast<Whole>(rounded);
}

} // namespace

Text lineName(TextSpan capture, TextSpan part)
{
    const std::less_equal<const char16_t*> notAfter; // unlike <=, defined for pointers into different texts
    const char16_t* const first = capture.data();
    if (part.empty() || !notAfter(first, part.data()) || !notAfter(part.data(), first + capture.size()))
        return {};
    const auto line = 1 + std::count(first, part.data(), carriageReturn);
    return u"Line " + plainNumber(static_cast<double>(line)) + u" of the copied text: ";
}

std::int16_t toInt16(double value, TextSpan what)
{
    return toWhole<std::int16_t>(value, what);
}

std::int32_t toInt32(double value, TextSpan what)
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
