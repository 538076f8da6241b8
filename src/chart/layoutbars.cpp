#include "chart/layoutsteps.h"

#include <algorithm>
#include <cmath>

namespace plotvue {

namespace {

constexpr double maxBarWidth = 6, maxLoneBarWidth = 9; // in em
constexpr int fewSlots = 3;
constexpr double minGap = 4;  // minimum distance between two figures
constexpr double flatBar = 2; // in hairlines: height of a component of 0, which shows its colour

struct BarRow { // the bars of a slot, from left to right
    double each = 0, gap = 0, all = 0;

    double left(const Layout& layout, int slot, std::size_t place) const
    {
        return layout.snapped(layout.slotBox(slot).centreX() - all / 2) + static_cast<double>(place) * each;
    }
};

BarRow barRow(const LayoutInput& input, const Layout& layout)
{
    const bool grouped = !input.data.stacked();
    const double maxWidth =
        layout.em * (grouped || layout.slotCount <= fewSlots ? maxLoneBarWidth : maxBarWidth);
    const double count =
        grouped ? static_cast<double>(std::max<std::size_t>(1, input.data.series().size())) : 1;
    BarRow row;
    row.each = std::min(layout.slotWidth * (grouped ? .82 : .70), maxWidth) / count;
    if (layout.pixel > 0)
        row.each = std::max(1.0, std::floor(row.each / layout.pixel)) * layout.pixel;
    row.gap = grouped && row.each > 7 ? layout.hairline : 0;
    row.all = row.each * count;
    return row;
}

struct Total { // the figure above or below a bar or stack
    int slot;
    std::size_t place;
    double value;
    bool up;
};

void addStackTotals(const PlotData& data, int slot, std::vector<Total>& totals)
{
    double up = 0, down = 0;
    bool any = false;
    for (std::size_t s = 0; s < data.series().size(); ++s) {
        const std::optional<double> value = data.value(s, slot);
        any = any || value;
        (value.value_or(0) < 0 ? down : up) += value.value_or(0);
    }
    if (any && (up > 0 || down == 0))
        totals.push_back({slot, 0, up, true});
    if (down < 0)
        totals.push_back({slot, 0, down, false});
}

std::vector<Total> totalsOf(const PlotData& data)
{
    std::vector<Total> totals;
    for (int slot = 0; slot < data.pointCount(); ++slot)
        if (data.stacked())
            addStackTotals(data, slot, totals);
        else
            for (std::size_t s = 0; s < data.series().size(); ++s)
                if (const std::optional<double> value = data.value(s, slot))
                    totals.push_back({slot, s, *value, *value >= 0});
    return totals;
}

void placeSlot(const LayoutInput& input, Layout& layout, const BarRow& row, int slot)
{
    const bool stacked = input.data.stacked();
    double reach[2] = {0, 0}; // down, up
    Bar* last[2] = {nullptr, nullptr};
    layout.bars.reserve(layout.bars.size() + input.data.series().size());
    for (std::size_t s = 0; s < input.data.series().size(); ++s) {
        const std::optional<double> figure = input.data.value(s, slot);
        const double value = figure.value_or(0);
        if (!figure || (value == 0 && !input.data.components()))
            continue;
        const bool up = value >= 0;
        const double from = stacked ? reach[up] : 0, to = from + value;
        reach[up] = to;
        if (stacked && last[up])
            last[up]->end = false;
        const double a = layout.snapped(layout.y(from)), b = layout.snapped(layout.y(to));
        const double left = row.left(layout, slot, stacked ? 0 : s);
        const double height = value == 0 ? flatBar * layout.hairline : std::abs(a - b);
        layout.bars.push_back({s, slot, {left, up ? a - height : a, row.each - row.gap, height}, up, true});
        last[up] = &layout.bars.back();
    }
}

void placeValues(const LayoutInput& input, Layout& layout, const BarRow& row)
{
    for (const Total& total : totalsOf(input.data)) {
        Text text = input.data.number(total.value);
        const double width = input.metrics.width(text, layout.valueRole);
        const double height = input.metrics.height(layout.valueRole), gap = layout.em * .125;
        const double centre = row.left(layout, total.slot, total.place) + (row.each - row.gap) / 2;
        const double end = layout.snapped(layout.y(total.value));
        const double top = total.up ? end - gap - height : end + gap;
        layout.values.push_back({total.slot, {{centre - width / 2, top, width, height}, std::move(text)}});
    }
}

} // namespace

std::optional<TextRole> sizeOfValues(const LayoutInput& input, const Layout& layout)
{
    const double room = (input.data.stacked() ? layout.slotWidth : barRow(input, layout).each) - minGap;
    const std::vector<Total> totals = totalsOf(input.data);
    for (const TextRole role : {TextRole::Small, TextRole::Tiny})
        if (std::all_of(totals.begin(), totals.end(), [&](const Total& total) {
                return input.metrics.width(input.data.number(total.value), role) <= room;
            }))
            return role;
    return {};
}

void placeBars(const LayoutInput& input, Layout& layout)
{
    const BarRow row = barRow(input, layout);
    for (int slot = 0; slot < layout.pointCount; ++slot)
        placeSlot(input, layout, row, slot);
    if (const std::optional<TextRole> size = sizeOfValues(input, layout)) {
        layout.valueRole = *size;
        placeValues(input, layout, row);
    }
}

} // namespace plotvue
