#include "chart/scale.h"

#include "chart/figuretext.h"

#include <algorithm>
#include <cmath>

namespace plotvue {

namespace {

constexpr int maxStepDecimals = 6;
constexpr int maxTicks = 50;
constexpr double tolerance = 1e-9;

bool isWhole(double value)
{
    return value > 0.5 && std::abs(value - std::round(value)) < 1e-6 * std::max(1.0, value);
}

double stepFor(double span, int maxSteps, double unit)
{
    const double minStep = span / std::max(1, maxSteps);
    const double power = std::pow(10.0, std::floor(std::log10(minStep)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0})
        if (factor * power >= minStep * (1 - tolerance) && isWhole(factor * power / unit))
            return factor * power;
    return std::max(10 * power, unit);
}

std::optional<double> finite(std::optional<double> value)
{
    return value && std::isfinite(*value) ? value : std::nullopt;
}

} // namespace

Range reachOf(const PlotData& data)
{
    Range reach;
    for (int slot = 0; slot < data.pointCount(); ++slot) {
        double up = 0, down = 0;
        for (std::size_t s = 0; s < data.series().size(); ++s) {
            const double value = data.value(s, slot).value_or(0);
            if (data.stacked()) {
                (value < 0 ? down : up) += value;
            } else {
                down = std::min(down, value);
                up = std::max(up, value);
            }
        }
        reach.low = std::min(reach.low, down);
        reach.high = std::max(reach.high, up);
    }
    return reach;
}

Scale scaleFor(Range reach, const ScaleWishes& wishes)
{
    std::optional<double> min = finite(wishes.min), max = finite(wishes.max);
    if (min && *min > reach.low)
        min.reset();
    if (max && *max < reach.high)
        max.reset();
    if (max.value_or(reach.high) <= min.value_or(reach.low))
        min = max = std::nullopt;
    const double unit =
        std::pow(10.0, -(wishes.decimals ? std::clamp(*wishes.decimals, 0, maxDecimals) : maxStepDecimals));
    const double low = min.value_or(reach.low), high = max.value_or(reach.high);

    Scale scale;
    const bool flat = high - low < unit * tolerance || !std::isfinite(high - low);
    const double step = flat ? 1 : stepFor(high - low, wishes.maxSteps, unit);
    scale.min = min.value_or(std::floor(low / step + tolerance) * step);
    scale.max = max.value_or(std::ceil(high / step - tolerance) * step);
    if (!(scale.max > scale.min))
        scale.max = scale.min + step;
    scale.decimals = wishes.decimals.value_or(decimalsNeeded(step, maxStepDecimals));

    scale.ticks.clear();
    const double first = std::ceil(scale.min / step - tolerance);
    for (int i = 0; i < maxTicks && (first + i) * step <= scale.max + step * tolerance; ++i)
        scale.ticks.push_back((first + i) * step);
    return scale;
}

} // namespace plotvue
