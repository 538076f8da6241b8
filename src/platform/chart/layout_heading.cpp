#include "platform/chart/drawable.h"
#include "platform/chart/layout_steps.h"

#include <array>

namespace plotvue::chart {

namespace {

struct TitlePlace {
    int position;
    TextRole role;
    bool main;
};
constexpr std::array<TitlePlace, 3> titlePlaces{
    {{1, TextRole::Small, false}, {2, TextRole::Large, true}, {3, TextRole::Body, false}}};

} // namespace

double placeTitles(const LayoutInput& input, Layout& layout, const Box& inner, double top)
{
    for (const TitlePlace& place : titlePlaces) {
        const auto title = input.content.titles.find(place.position);
        if (title == input.content.titles.end())
            continue;
        Text text = input.fitted(drawable(title->second), inner.width, place.role);
        if (text.empty())
            continue;
        const double height = input.metrics.height(place.role);
        layout.titles.push_back(
            {{{inner.left, top, inner.width, height}, std::move(text)}, place.role, place.main});
        top += height + layout.em * .125;
    }
    return top;
}

double placeLegend(const LayoutInput& input, Layout& layout, const Box& inner, double top)
{
    if (!input.figures.legendTellsSomething())
        return top;
    const double em = layout.em, side = layout.snapped(em * .75), beforeName = side + em * .5;
    double left = inner.left;
    top += em * .5;
    const auto& series = input.figures.series();
    for (std::size_t s = 0; s < series.size(); ++s) {
        Text name = input.fitted(drawable(series[s].name), inner.width - beforeName, TextRole::Small);
        if (name.empty())
            continue;
        const double width = input.width(name);
        if (left + beforeName + width > inner.right()) { // never the first of a line
            left = inner.left;
            top += em * 1.25;
        }
        const Box swatch{layout.snapped(left), layout.snapped(top + (em - side) / 2), side, side};
        layout.legend.push_back({s, swatch, {{left + beforeName, top, width, em}, std::move(name)}});
        left += beforeName + width + em * 1.25;
    }
    return top + em;
}

} // namespace plotvue::chart
