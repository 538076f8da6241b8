// The steps of the layout, from the top of the paper to the bars. Each adds its own to the layout.
#pragma once

#include "chart/layout.h"

namespace plotvue::chart {

struct LayoutInput {
    const Figures& figures;
    const Metrics& metrics;

    const Chart& chart() const { return figures.chart(); }

    double width(TextSpan text) const { return metrics.width(text, TextRole::Small); }
    Text fitted(Text text, double room, TextRole role) const;
};

// Each from `top` down within `inner`; answers where it ends.
double placeTitles(const LayoutInput& input, Layout& layout, const Box& inner, double top);
double placeLegend(const LayoutInput& input, Layout& layout, const Box& inner, double top);

// Scale, plot, ticks, labels and year rules in what is left of `inner` below `top`.
void placeAxes(const LayoutInput& input, Layout& layout, const Box& inner, double top);

// Whether all figures fit above or below their bars, once slotWidth is known.
bool valuesFit(const LayoutInput& input, const Layout& layout);
// Once the plot and the scale are known.
void placeBars(const LayoutInput& input, Layout& layout);

} // namespace plotvue::chart
