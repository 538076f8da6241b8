// The steps of the layout, in order. Each adds its part to the layout.
#pragma once

#include "chart/layout.h"

#include <optional>

namespace plotvue {

struct LayoutInput {
    const PlotData& data;
    const Metrics& metrics;

    const Chart& chart() const { return data.chart(); }

    double width(TextSpan text) const { return metrics.width(text, TextRole::Small); }
    Text fitted(Text text, double room, TextRole role) const;
};

// Each places its part inside `inner`, from `top` downwards, and returns the y at which it ends.
double placeTitles(const LayoutInput& input, Layout& layout, const Rect& inner, double top);
double placeLegend(const LayoutInput& input, Layout& layout, const Rect& inner, double top);

// Sets the scale, and places the plot, ticks, labels and year rules in the part of `inner` below `top`.
void placeAxes(const LayoutInput& input, Layout& layout, const Rect& inner, double top);

// The largest size in which every figure fits above or below its bar; absent if there is none. Requires
// layout.slotWidth.
std::optional<TextRole> sizeOfValues(const LayoutInput& input, const Layout& layout);
// Requires layout.plot and layout.scale.
void placeBars(const LayoutInput& input, Layout& layout);

} // namespace plotvue
