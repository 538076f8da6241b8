#include "chart/drawable.h"
#include "chart/figuretext.h"
#include "chart/layoutsteps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

namespace plotvue {

namespace {

constexpr double slant = std::numbers::sqrt2 / 2; // sine and cosine of 45 degrees
constexpr double linesPerStep = 3.5;
constexpr int minSteps = 2, maxSteps = 8;

bool holdsDigit(const Text& text)
{
    return std::any_of(text.begin(), text.end(), [](char16_t c) { return c >= u'0' && c <= u'9'; });
}

struct Labels {
    std::vector<Text> texts;
    std::optional<int> january; // the slot of a January; absent if the chart is not one of whole years

    bool isJanuary(std::size_t slot) const { return january && holdsDigit(texts[slot]); }
};

// A chart of whole years is one whose labels have a year only in January: "J98", "FEB", "MAR".
Labels readLabels(const LayoutInput& input)
{
    Labels labels;
    int withYear = 0, without = 0;
    std::optional<int> january;
    for (int slot = 0; slot < input.data.slotCount(); ++slot) {
        labels.texts.push_back(drawable(input.data.label(slot)));
        const Text& text = labels.texts.back();
        if (holdsDigit(text)) {
            january = slot;
            ++withYear;
        } else if (!text.empty()) {
            ++without;
        }
    }
    if (withYear < without && input.chart().design.labels == ChartDesign::Labels::Months &&
        !input.data.components())
        labels.january = january;
    return labels;
}

struct LabelStyle {
    enum class Window {
        Whole,   // "OCT98"
        Broken,  // "OCT" over "98"
        Initials // in a chart of whole years: "J" over "98", "F", "M"
    };
    Window form = Window::Whole;
    TextRole role = TextRole::Small;
    double gap = .5; // minimum gap between two labels, in em
    int step = 1;    // slots from one label to the next

    int lines() const { return form == Window::Whole ? 1 : 2; }
};

// The lines of a label; the second is empty if there is only one.
std::array<Text, 2> linesOf(const Text& label, LabelStyle::Window form)
{
    if (form == LabelStyle::Window::Whole)
        return {label, {}};
    const std::size_t digits = std::min(label.find_first_of(u"0123456789"), label.size());
    return {label.substr(0, form == LabelStyle::Window::Initials ? 1 : digits), label.substr(digits)};
}

double widest(const LayoutInput& input, const Labels& labels, const LabelStyle& style)
{
    double width = 0;
    for (const Text& label : labels.texts) {
        const auto [first, second] = linesOf(label, style.form);
        width = std::max(width, input.metrics.width(first, style.role));
        if (style.form == LabelStyle::Window::Broken) // a year below initials may be as wide as twelve slots
            width = std::max(width, input.metrics.width(second, style.role));
    }
    return width;
}

// The first style in which every label fits. If there is none, the labels are thinned out.
LabelStyle styleOfMonths(const LayoutInput& input, const Labels& labels, double slotWidth, double em)
{
    using Window = LabelStyle::Window;
    const Window tighter = labels.january ? Window::Initials : Window::Broken;
    const double gap = labels.january ? .1 : .25;
    for (const LabelStyle& style :
         {LabelStyle{}, LabelStyle{Window::Whole, TextRole::Tiny, .25},
          LabelStyle{tighter, TextRole::Small, gap}, LabelStyle{tighter, TextRole::Tiny, gap}})
        if (widest(input, labels, style) + em * style.gap <= slotWidth)
            return style;
    const double wanted = widest(input, labels, {}) + em * LabelStyle{}.gap;
    for (const int step : {2, 3, 4, 6})
        if (wanted <= slotWidth * step)
            return {.step = step};
    const double years = std::ceil(wanted / (slotWidth * 12));
    return {.step = 12 * (labels.january ? 1 : static_cast<int>(years))};
}

// The number of slots from one labelled slot to the next. The distance between slanted labels is `slant`
// times that of their slots, and capitals need only three quarters of the line height.
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

void placeUpright(const LayoutInput& input, Layout& layout, int slot, const Text& label, double top,
                  bool strong, const LabelStyle& style)
{
    const double centre = layout.slotBox(slot).centreX();
    for (const Text& line : linesOf(label, style.form)) {
        const double width = input.metrics.width(line, style.role);
        if (!line.empty())
            layout.labels.push_back({slot, {{centre - width / 2, top, width, layout.em}, line}, strong});
        top += layout.em;
    }
}

void placeSlanted(const LayoutInput& input, Layout& layout, int slot, Text text, double top, double longest)
{
    const double end = layout.slotBox(slot).centreX() + layout.em * .25;
    text = input.fitted(std::move(text), std::min(longest, (end - layout.em / 4) / slant), TextRole::Small);
    const double width = input.width(text);
    if (!text.empty())
        layout.labels.push_back({slot, {{end - width, top, width, layout.em}, std::move(text)}, true});
}

void placeLabels(const LayoutInput& input, Layout& layout, const Labels& labels, const LabelStyle& style,
                 double top, double longest)
{
    layout.labelRole = style.role;
    // In a chart of whole years the step divides 12, so every January has the same remainder.
    const int phase = labels.january.value_or(0) % style.step;
    for (int slot = 0; slot < layout.slotCount; ++slot) {
        const bool january = labels.isJanuary(static_cast<std::size_t>(slot));
        if (january && slot > 0)
            layout.yearRules.push_back(layout.snapped(layout.slotBox(slot).left));
        const Text& text = labels.texts[static_cast<std::size_t>(slot)];
        if (slot % style.step != phase || text.empty())
            continue;
        if (layout.slanted)
            placeSlanted(input, layout, slot, text, top, longest);
        else
            placeUpright(input, layout, slot, text, top, !labels.january || january, style);
    }
}

} // namespace

void placeAxes(const LayoutInput& input, Layout& layout, const Rect& inner, double top)
{
    const double em = layout.em;
    const Range reach = reachOf(input.data);
    const Chart& chart = input.chart();
    ScaleWishes wishes{chart.axisMin, chart.axisMax, chart.decimals};
    wishes.maxSteps = std::clamp(static_cast<int>((inner.bottom() - top - em * 2) / (em * linesPerStep)),
                                 minSteps, maxSteps);
    layout.scale = scaleFor(reach, wishes);

    double maxTickWidth = 0;
    for (const double value : layout.scale.ticks)
        maxTickWidth = std::max(maxTickWidth, input.width(figureText(value, layout.scale.decimals)));
    const double ticksEnd = inner.left + std::min(maxTickWidth, inner.width / 2);
    layout.plot.left = layout.snapped(ticksEnd + em * .5);
    layout.plot.width = std::max(em, layout.snapped(inner.right()) - layout.plot.left);
    layout.slotWidth = layout.plot.width / layout.slotCount;

    const Labels labels = readLabels(input);
    const bool names = input.chart().design.labels == ChartDesign::Labels::Names || input.data.components();
    const double longestName = names ? widest(input, labels, {}) : 0;
    layout.slanted = names && longestName + em * .5 > layout.slotWidth;
    const LabelStyle style = names
                                 ? LabelStyle{.step = stepBetweenNames(layout.slanted, layout.slotWidth, em)}
                                 : styleOfMonths(input, labels, layout.slotWidth, em);
    const double longest = layout.paper.height * .22 / slant;
    const double labelHeight =
        layout.slanted ? std::min(longestName, longest) * slant + em * .5 : em * style.lines();
    const double belowBars = reach.low < 0 && sizeOfValues(input, layout) ? em * .75 : 0;
    const double labelTop = inner.bottom() - labelHeight;

    layout.plot.top = layout.snapped(top);
    layout.plot.height = std::max(em, layout.snapped(labelTop - em * .5 - belowBars) - layout.plot.top);
    placeTicks(input, layout, ticksEnd);
    placeLabels(input, layout, labels, style, layout.plot.bottom() + em * .5 + belowBars, longest);
}

} // namespace plotvue
