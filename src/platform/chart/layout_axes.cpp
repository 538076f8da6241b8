#include "platform/chart/drawable.h"
#include "platform/chart/figure_text.h"
#include "platform/chart/layout_steps.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace plotvue::chart {

namespace {

constexpr double slant = std::numbers::sqrt2 / 2; // sine and cosine of the slanted labels
constexpr double linesPerStep = 3.5;
constexpr int fewestSteps = 2, mostSteps = 8;

bool holdsDigit(const Text& text)
{
    return std::any_of(text.begin(), text.end(), [](char16_t c) { return c >= u'0' && c <= u'9'; });
}

struct Labels {
    std::vector<Text> texts;
    double widest = 0;
    std::optional<int> january; // the slot of one of them; absent: not a chart of whole years

    bool isJanuary(std::size_t slot) const { return january && holdsDigit(texts[slot]); }
};

// Over five years only the Januaries carry their year: "J98", "FEB", "MAR".
Labels readLabels(const LayoutInput& input)
{
    Labels labels;
    bool without = false;
    std::optional<int> january;
    for (int slot = 0; slot < input.figures.slotCount(); ++slot) {
        labels.texts.push_back(drawable(input.figures.label(slot)));
        const Text& text = labels.texts.back();
        labels.widest = std::max(labels.widest, input.width(text));
        if (holdsDigit(text))
            january = slot;
        else
            without = without || !text.empty();
    }
    if (without && input.design.labels == ChartDesign::Labels::Months && !input.figures.components())
        labels.january = january;
    return labels;
}

int stepBetweenLabels(const Labels& labels, double slotWidth, double em)
{
    const double wanted = labels.widest + em * .5;
    for (const int step : {1, 2, 3, 4, 6})
        if (wanted <= slotWidth * step)
            return step;
    const double years = std::ceil(wanted / (slotWidth * 12));
    return 12 * (labels.january ? 1 : static_cast<int>(years));
}

// Slanted lines of type stand closer than their slots; capitals need less than the whole height of a line.
int stepBetweenNames(bool slanted, double slotWidth, double em)
{
    return slanted ? static_cast<int>(std::ceil(em * .75 / (slotWidth * slant))) : 1;
}

void placeTicks(const LayoutInput& input, Layout& layout, double right)
{
    for (const double value : layout.scale.ticks) {
        Text text = figureText(value, layout.scale.decimals);
        const double y = layout.snapped(layout.y(value)), width = input.width(text);
        layout.ticks.push_back({y, {{right - width, y - layout.em / 2, width, layout.em}, std::move(text)}});
    }
    if (layout.scale.min <= 0 && layout.scale.max >= 0)
        layout.zero = layout.snapped(layout.y(0));
}

void placeLabels(const LayoutInput& input, Layout& layout, Labels labels, int step, double top,
                 double longest)
{
    const double em = layout.em;
    // Beside Januaries the step divides a year: any of them tells which slots are labelled.
    const int phase = labels.january.value_or(0) % step;
    for (int slot = 0; slot < layout.slotCount; ++slot) {
        const bool january = labels.isJanuary(static_cast<std::size_t>(slot));
        if (january && slot > 0)
            layout.yearRules.push_back(layout.snapped(layout.slotBox(slot).left));
        if (slot % step != phase)
            continue;
        const double centre = layout.slotBox(slot).centreX();
        const double end = centre + em * .25;
        Text text = std::move(labels.texts[static_cast<std::size_t>(slot)]);
        if (layout.slanted)
            text = input.fitted(std::move(text), std::min(longest, (end - em / 4) / slant), TextRole::Small);
        if (text.empty())
            continue;
        const double width = input.width(text);
        const double left = layout.slanted ? end - width : centre - width / 2;
        layout.labels.push_back(
            {slot, {{left, top, width, em}, std::move(text)}, !labels.january || january});
    }
}

} // namespace

void placeAxes(const LayoutInput& input, Layout& layout, const Box& inner, double top)
{
    const double em = layout.em;
    const Range reach = reachOf(input.figures);
    ScaleWishes wishes{input.content.axisMin, input.content.axisMax, input.content.decimals};
    wishes.mostSteps = std::clamp(static_cast<int>((inner.bottom() - top - em * 2) / (em * linesPerStep)),
                                  fewestSteps, mostSteps);
    layout.scale = scaleFor(reach, wishes);

    double widestTick = 0;
    for (const double value : layout.scale.ticks)
        widestTick = std::max(widestTick, input.width(figureText(value, layout.scale.decimals)));
    const double ticksEnd = inner.left + std::min(widestTick, inner.width / 2);
    layout.plot.left = layout.snapped(ticksEnd + em * .5);
    layout.plot.width = std::max(em, layout.snapped(inner.right()) - layout.plot.left);
    layout.slotWidth = layout.plot.width / layout.slotCount;

    Labels labels = readLabels(input);
    const bool names = input.design.labels == ChartDesign::Labels::Names || input.figures.components();
    layout.slanted = names && labels.widest + em * .5 > layout.slotWidth;
    const double longest = layout.paper.height * .22 / slant;
    const double labelHeight = layout.slanted ? std::min(labels.widest, longest) * slant + em * .5 : em;
    const double belowBars = reach.low < 0 && valuesFit(input, layout) ? em * .75 : 0;
    const double labelTop = inner.bottom() - labelHeight;

    layout.plot.top = layout.snapped(top);
    layout.plot.height = std::max(em, layout.snapped(labelTop - em * .5 - belowBars) - layout.plot.top);
    placeTicks(input, layout, ticksEnd);
    const int step = names ? stepBetweenNames(layout.slanted, layout.slotWidth, em)
                           : stepBetweenLabels(labels, layout.slotWidth, em);
    placeLabels(input, layout, std::move(labels), step, layout.plot.bottom() + em * .5 + belowBars, longest);
}

} // namespace plotvue::chart
