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
        if (holdsDigit(text))
            january = slot;
        else
            without = without || !text.empty();
    }
    if (without && input.design.labels == ChartDesign::Labels::Months && !input.figures.components())
        labels.january = january;
    return labels;
}

// How the labels are set.
struct Setting {
    TextRole role = TextRole::Small;
    bool initials = false; // "J" over "98", "F", "M"
    int step = 1;          // slots from one label to the next
};

double widest(const LayoutInput& input, const Labels& labels, const Setting& setting)
{
    double width = 0;
    for (const Text& text : labels.texts)
        width =
            std::max(width, input.metrics.width(setting.initials ? text.substr(0, 1) : text, setting.role));
    return width;
}

// Thinned only where every label fits in no other way.
Setting settingOfMonths(const LayoutInput& input, const Labels& labels, double slotWidth, double em)
{
    const Setting whole[] = {{TextRole::Small}, {TextRole::Tiny}},
                  initials[] = {{TextRole::Small, true}, {TextRole::Tiny, true}};
    const auto fits = [&](const Setting& setting) {
        const double gap = em * (setting.role == TextRole::Small && !setting.initials ? .5 : .2);
        return widest(input, labels, setting) + gap <= slotWidth;
    };
    for (const Setting& setting : whole)
        if (fits(setting))
            return setting;
    if (labels.january)
        for (const Setting& setting : initials)
            if (fits(setting))
                return setting;
    const double wanted = widest(input, labels, {}) + em * .5;
    for (const int step : {2, 3, 4, 6})
        if (wanted <= slotWidth * step)
            return {.step = step};
    const double years = std::ceil(wanted / (slotWidth * 12));
    return {.step = 12 * (labels.january ? 1 : static_cast<int>(years))};
}

// Slanted lines of type are closer together than their slots; capitals need less than the whole height of a
// line.
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
    layout.zero = layout.snapped(layout.y(0));
}

// The label in one line, or its initial and the figures of its year in two.
void placeUpright(const LayoutInput& input, Layout& layout, int slot, const Text& text, double top,
                  bool strong, const Setting& setting)
{
    const double centre = layout.slotBox(slot).centreX();
    const auto placeLine = [&](Text line, double lineTop) {
        const double width = input.metrics.width(line, setting.role);
        layout.labels.push_back(
            {slot, {{centre - width / 2, lineTop, width, layout.em}, std::move(line)}, strong});
    };
    placeLine(setting.initials ? text.substr(0, 1) : text, top);
    if (setting.initials && holdsDigit(text))
        placeLine(text.substr(1), top + layout.em);
}

void placeSlanted(const LayoutInput& input, Layout& layout, int slot, Text text, double top, double longest)
{
    const double end = layout.slotBox(slot).centreX() + layout.em * .25;
    text = input.fitted(std::move(text), std::min(longest, (end - layout.em / 4) / slant), TextRole::Small);
    const double width = input.width(text);
    if (!text.empty())
        layout.labels.push_back({slot, {{end - width, top, width, layout.em}, std::move(text)}, true});
}

void placeLabels(const LayoutInput& input, Layout& layout, const Labels& labels, const Setting& setting,
                 double top, double longest)
{
    layout.labelRole = setting.role;
    // Beside Januaries the step divides a year: any of them tells which slots are labelled.
    const int phase = labels.january.value_or(0) % setting.step;
    for (int slot = 0; slot < layout.slotCount; ++slot) {
        const bool january = labels.isJanuary(static_cast<std::size_t>(slot));
        if (january && slot > 0)
            layout.yearRules.push_back(layout.snapped(layout.slotBox(slot).left));
        const Text& text = labels.texts[static_cast<std::size_t>(slot)];
        if (slot % setting.step != phase || text.empty())
            continue;
        if (layout.slanted)
            placeSlanted(input, layout, slot, text, top, longest);
        else
            placeUpright(input, layout, slot, text, top, !labels.january || january, setting);
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

    const Labels labels = readLabels(input);
    const double longestName = widest(input, labels, {});
    const bool names = input.design.labels == ChartDesign::Labels::Names || input.figures.components();
    layout.slanted = names && longestName + em * .5 > layout.slotWidth;
    const Setting setting = names ? Setting{.step = stepBetweenNames(layout.slanted, layout.slotWidth, em)}
                                  : settingOfMonths(input, labels, layout.slotWidth, em);
    const double longest = layout.paper.height * .22 / slant;
    const double labelHeight =
        layout.slanted ? std::min(longestName, longest) * slant + em * .5 : em * (setting.initials ? 2 : 1);
    const double belowBars = reach.low < 0 && valuesFit(input, layout) ? em * .75 : 0;
    const double labelTop = inner.bottom() - labelHeight;

    layout.plot.top = layout.snapped(top);
    layout.plot.height = std::max(em, layout.snapped(labelTop - em * .5 - belowBars) - layout.plot.top);
    placeTicks(input, layout, ticksEnd);
    placeLabels(input, layout, labels, setting, layout.plot.bottom() + em * .5 + belowBars, longest);
}

} // namespace plotvue::chart
