#include "chart/plotdata.h"

#include "chart/drawable.h"
#include "chart/figuretext.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace plotvue {

namespace {

// Colours that colour-blind users can distinguish, too. Neighbours contrast more at the beginning than at the
// end.
constexpr std::array<Colour, 8> palette{{{0x24, 0x58, 0xB0},
                                         {0xDB, 0x9A, 0x35},
                                         {0x1A, 0x9C, 0x8F},
                                         {0x9C, 0x34, 0x12},
                                         {0x5C, 0xC0, 0xEE},
                                         {0x7A, 0x4A, 0x70},
                                         {0xB3, 0xC4, 0x8C},
                                         {0x50, 0x5A, 0x52}}};
constexpr double largestValue = 1e300;
constexpr int maxValueDecimals = 2;

double clamped(double value)
{
    return std::isnan(value) ? 0 : std::clamp(value, -largestValue, largestValue);
}

} // namespace

PlotData::PlotData(const Chart& chart) : chart_(chart)
{
    findSeries();
    findSlots();
    stacked_ = components_ || chart_.design.bars == ChartDesign::Bars::Stacked;
    decimals_ = chart_.decimals ? *chart_.decimals : decimalsOfValues();
}

bool PlotData::nothingIn(const std::vector<double>& values) const
{
    return std::all_of(values.begin(), values.end(), [](double v) { return clamped(v) == 0; });
}

TextSpan PlotData::nameOf(int number, bool alone) const
{
    if (const auto own = chart_.legends.find(number); own != chart_.legends.end())
        return own->second;
    if (const auto designed = chart_.design.legends.find(number);
        designed != chart_.design.legends.end() && !alone)
        return designed->second;
    if (const auto caption = chart_.titles.find(1); caption != chart_.titles.end())
        return caption->second;
    return {};
}

void PlotData::findSeries()
{
    std::size_t colours = 0;
    for (std::size_t i = 0; i < chart_.series.size(); ++i) {
        const int number = static_cast<int>(i);
        const bool projection = number == chart_.design.projection;
        // Colours are counted before series are skipped, so that hiding a series does not change the colours
        // of others.
        const std::size_t colour = projection ? colours - 1 : colours++;
        if (chart_.hidden.contains(number) || (projection && nothingIn(chart_.series[i])))
            continue;
        Series found{i, nameOf(number, false), palette[colour % palette.size()], false, projection};
        auto own = chart_.colours.find(number);
        if (own == chart_.colours.end() && projection)
            own = chart_.colours.find(number - 1);
        if (own != chart_.colours.end()) {
            found.colour = own->second;
            found.ownColour = true;
        }
        series_.push_back(found);
    }
    if (series_.size() == 1)
        series_.front().name = nameOf(static_cast<int>(series_.front().number), true);
    const bool anyNamed =
        std::any_of(series_.begin(), series_.end(), [](const Series& s) { return !isBlank(s.name); });
    if (anyNamed)
        std::erase_if(series_, [this](const Series& s) {
            return isBlank(s.name) && nothingIn(chart_.series[s.number]);
        });
}

void PlotData::findSlots()
{
    std::size_t longest = chart_.labels.size();
    for (const Series& s : series_)
        longest = std::max(longest, chart_.series[s.number].size());
    components_ = chart_.labels.empty() && longest == 1 && series_.size() > 1;
    slotCount_ = static_cast<int>(components_ ? series_.size() : longest);
    pointCount_ = slotCount_;
    const int last = slotCount_ - 1;
    if (chart_.labels.empty() || last < 1 || !isBlank(label(last)))
        return;
    for (std::size_t s = 0; s < series_.size(); ++s)
        if (value(s, last).value_or(0) != 0)
            return;
    pointCount_ = last;
}

bool PlotData::legendTellsSomething() const
{
    if (components_)
        return false;
    const auto named =
        std::count_if(series_.begin(), series_.end(), [](const Series& s) { return !isBlank(s.name); });
    return named >= 2 || (named > 0 && std::any_of(series_.begin(), series_.end(),
                                                   [](const Series& s) { return s.projection; }));
}

TextSpan PlotData::label(int slot) const
{
    const std::size_t i = static_cast<std::size_t>(slot);
    if (slot < 0 || slot >= slotCount_)
        return {};
    if (components_)
        return series_[i].name;
    return i < chart_.labels.size() ? TextSpan(chart_.labels[i]) : TextSpan();
}

TextSpan PlotData::fullLabel(int slot) const
{
    const std::size_t i = static_cast<std::size_t>(slot);
    const bool given = slot >= 0 && slot < slotCount_ && i < chart_.fullLabels.size();
    return given ? TextSpan(chart_.fullLabels[i]) : label(slot);
}

std::optional<double> PlotData::value(std::size_t series, int slot) const
{
    const std::vector<double>& values = chart_.series[series_[series].number];
    if (components_ && static_cast<std::size_t>(slot) != series)
        return {};
    const std::size_t i = components_ ? 0 : static_cast<std::size_t>(slot);
    if (slot < 0 || i >= values.size())
        return {};
    return clamped(values[i]);
}

int PlotData::decimalsOfValues() const
{
    int decimals = 0;
    for (const Series& s : series_)
        for (const double v : chart_.series[s.number])
            decimals = std::max(decimals, decimalsNeeded(clamped(v), maxValueDecimals));
    return decimals;
}

Text PlotData::number(double value) const
{
    return figureText(value, decimals_);
}

Text PlotData::sentence(int slot) const
{
    if (slot < 0 || slot >= pointCount_)
        return {};
    Text text = drawable(fullLabel(slot)), separator = text.empty() ? Text() : Text(u": ");
    for (std::size_t s = 0; s < series_.size(); ++s) {
        const std::optional<double> figure = value(s, slot);
        // Only the month in progress has a projection.
        if (!figure || (series_[s].projection && *figure == 0))
            continue;
        text += separator;
        if (const Text name = components_ ? Text() : drawable(series_[s].name); !name.empty())
            text += name + u' ';
        text += number(*figure);
        separator = u", ";
    }
    return text;
}

Text titlesInOneLine(const Chart& chart)
{
    Text line;
    for (int position = 1; position <= 3; ++position) {
        const auto title = chart.titles.find(position);
        const Text text = title == chart.titles.end() ? Text() : drawable(title->second);
        if (!text.empty())
            line += (line.empty() ? u"" : u", ") + text;
    }
    return line;
}

} // namespace plotvue
