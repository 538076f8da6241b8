#include "chart/drawable.h"
#include "chart/layoutsteps.h"

#include <algorithm>
#include <array>

namespace plotvue {

namespace {

struct TitlePlace {
    int position;
    std::vector<TextRole> roles; // the first one in which the title fits is used, else the last
    bool main;
};
const std::array<TitlePlace, 3> titlePlaces{
    {{1, {TextRole::Small}, false},
     {2, {TextRole::LargeTitle, TextRole::MediumTitle, TextRole::BodyTitle}, true},
     {3, {TextRole::Body}, false}}};

TextRole roleThatFits(const TitlePlace& place, TextSpan text, double room, const Metrics& metrics)
{
    const auto fits = [&](TextRole role) { return metrics.width(text, role) <= room; };
    const auto found = std::find_if(place.roles.begin(), place.roles.end(), fits);
    return found == place.roles.end() ? place.roles.back() : *found;
}

} // namespace

double placeTitles(const LayoutInput& input, Layout& layout, const Rect& inner, double top)
{
    for (const TitlePlace& place : titlePlaces) {
        const auto title = input.chart().titles.find(place.position);
        if (title == input.chart().titles.end())
            continue;
        Text text = drawable(title->second);
        const TextRole role = roleThatFits(place, text, inner.width, input.metrics);
        text = input.fitted(std::move(text), inner.width, role);
        if (text.empty())
            continue;
        // Reserve the height of the largest size, so that the plot has the same position in every chart.
        const double height = input.metrics.height(place.roles.front());
        layout.titles.push_back(
            {{{inner.left, top, inner.width, height}, std::move(text)}, role, place.main});
        top += height + layout.em * .125;
    }
    return top;
}

double placeLegend(const LayoutInput& input, Layout& layout, const Rect& inner, double top)
{
    if (!input.data.legendTellsSomething())
        return top;
    const double em = layout.em, side = layout.snapped(em * .75), beforeName = side + em * .5;
    double left = inner.left;
    top += em * .5;
    const auto& series = input.data.series();
    for (std::size_t s = 0; s < series.size(); ++s) {
        Text name = input.fitted(drawable(series[s].name), inner.width - beforeName, TextRole::Small);
        if (name.empty())
            continue;
        const double width = input.width(name);
        if (left + beforeName + width > inner.right()) { // never true for the first name of a line
            left = inner.left;
            top += em * 1.25;
        }
        const Rect swatch{layout.snapped(left), layout.snapped(top + (em - side) / 2), side, side};
        layout.legend.push_back({s, swatch, {{left + beforeName, top, width, em}, std::move(name)}});
        left += beforeName + width + em * 1.25;
    }
    return top + em * 1.5; // keeps the value of a bar that fills the plot away from the legend
}

} // namespace plotvue
