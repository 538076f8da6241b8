#include "desktop/chart/chartcolours.h"

#include <cmath>

namespace plotvue {

namespace {

constexpr double enoughContrast = 3;

// The transfer function of sRGB, IEC 61966-2-1.
double linear(double channel)
{
    return channel <= .04045 ? channel / 12.92 : std::pow((channel + .055) / 1.055, 2.4);
}

// Relative luminance and contrast ratio (1 to 21) as the Web Content Accessibility Guidelines 2.1 define
// them. They require a ratio of at least 3 for graphics.
double luminance(const QColor& colour)
{
    return .2126 * linear(colour.redF()) + .7152 * linear(colour.greenF()) + .0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one), b = luminance(other);
    return (qMax(a, b) + .05) / (qMin(a, b) + .05);
}

QColor readable(QColor colour, const QColor& paper, const QColor& ink)
{
    for (int i = 0; i < 12 && contrast(colour, paper) < enoughContrast; ++i)
        colour = mixed(colour, ink, .08);
    return colour;
}

} // namespace

QColor mixed(const QColor& from, const QColor& to, double share)
{
    const auto mix = [share](float a, float b) { return a + (b - a) * static_cast<float>(share); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

ChartInks::ChartInks(const QPalette& palette)
    : paper(palette.color(QPalette::Base)),
      ink(palette.color(QPalette::Text)),
      soft(mixed(ink, paper, .35)),
      grid(mixed(ink, paper, .87)),
      axis(mixed(ink, paper, .4)),
      band(mixed(ink, paper, .93))
{}

BarColours barColours(const PlotData::Series& series, const ChartInks& inks)
{
    const QColor asked(series.colour.red, series.colour.green, series.colour.blue);
    if (series.ownColour) // exactly as requested, with an outline for contrast
        return {asked, mixed(asked, Qt::black, .35)};
    if (contrast(asked, inks.paper) >= enoughContrast)
        return {asked, {}};
    // On a dark background, dark colours are lightened. On a light one, light colours are kept and get an
    // outline.
    if (luminance(inks.paper) < luminance(inks.ink))
        return {readable(asked, inks.paper, inks.ink), {}};
    return {asked, mixed(asked, inks.ink, .25)};
}

QPalette whitePaper()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

} // namespace plotvue
