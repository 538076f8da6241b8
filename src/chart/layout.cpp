#include "chart/layout.h"

#include "chart/drawable.h"
#include "chart/layoutsteps.h"

#include <algorithm>
#include <cmath>

namespace plotvue {

Text LayoutInput::fitted(Text text, double room, TextRole role) const
{
    return elided(std::move(text), room, [&](TextSpan part) { return metrics.width(part, role); });
}

Rect Layout::slotBox(int slot) const
{
    return {plot.left + slot * slotWidth, plot.top, slotWidth, plot.height};
}

int Layout::slotAt(double x, double y) const
{
    if (pointCount == 0 || x < plot.left || y < plot.top - em || y >= paper.height)
        return -1;
    const int slot = static_cast<int>((x - plot.left) / slotWidth);
    return slot < pointCount ? slot : -1;
}

double Layout::y(double value) const
{
    const double share = (std::clamp(value, scale.min, scale.max) - scale.min) / (scale.max - scale.min);
    return plot.bottom() - share * plot.height;
}

double Layout::snapped(double length) const
{
    return pixel > 0 ? std::round(length / pixel) * pixel : length;
}

Layout layoutChart(const PlotData& data, Size paper, const Metrics& metrics, double deviceScale)
{
    const LayoutInput input{data, metrics};
    Layout layout;
    layout.paper = paper;
    layout.em = metrics.height(TextRole::Small);
    if (deviceScale > 0) {
        layout.pixel = 1 / deviceScale;
        layout.hairline = std::max(1.0, std::floor(deviceScale)) * layout.pixel;
    }
    const double em = layout.em;
    const Rect inner{em, em * .75, std::max(em, paper.width - 2 * em), std::max(em, paper.height - 1.5 * em)};
    double top = placeTitles(input, layout, inner, inner.top);
    layout.slotCount = data.slotCount();
    layout.pointCount = data.pointCount();
    if (layout.slotCount == 0)
        return layout;
    top = placeLegend(input, layout, inner, top);
    placeAxes(input, layout, inner, top + em * 1.25);
    placeBars(input, layout);
    return layout;
}

} // namespace plotvue
