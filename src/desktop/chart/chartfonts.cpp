#include "desktop/chart/chartfonts.h"

#include "desktop/chart/qtext.h"

#include <QPaintDevice>

namespace plotvue {

namespace {

// The text sizes of a chart, as multiples of the size of the window's font.
constexpr double smallSize = .92, mediumTitleSize = 1.25, largeTitleSize = 1.5;
constexpr double minPoints = 7.5; // smaller type is hard to read

QFont resized(const QFont& base, double factor, QFont::Weight weight = QFont::Normal)
{
    QFont font = base;
    if (base.pointSizeF() > 0)
        font.setPointSizeF(base.pointSizeF() * factor);
    else
        font.setPixelSize(qMax(1, qRound(base.pixelSize() * factor)));
    font.setWeight(weight);
    return font;
}

// A font whose size is set in pixels keeps that number of pixels on every device.
double unitsPerPoint(const QFont& base, int baseDpi, const QPaintDevice& device)
{
    return base.pointSizeF() > 0 ? double(baseDpi) / qMax(1, device.logicalDpiY()) : 1;
}

double pointsOf(const QFont& base, int baseDpi)
{
    return base.pointSizeF() > 0 ? base.pointSizeF() : base.pixelSize() * 72. / qMax(1, baseDpi);
}

// The fonts of all text roles, in the order of TextRole.
std::array<QFont, textRoles> fontsFor(const QFont& base, int baseDpi, double factor)
{
    const double tinySize = minPoints / pointsOf(base, baseDpi);
    return {resized(base, tinySize * factor),
            resized(base, qMax(smallSize, tinySize) * factor),
            resized(base, factor),
            resized(base, factor, QFont::DemiBold),
            resized(base, mediumTitleSize * factor, QFont::DemiBold),
            resized(base, largeTitleSize * factor, QFont::DemiBold)};
}

std::array<QFontMetricsF, textRoles> metricsFor(const std::array<QFont, textRoles>& fonts,
                                                const QPaintDevice& device)
{
    const auto of = [&](std::size_t role) { return QFontMetricsF(fonts[role], &device); };
    return {of(0), of(1), of(2), of(3), of(4), of(5)};
}

} // namespace

ChartFonts::ChartFonts(const QFont& base, int baseDpi, const QPaintDevice& device)
    : fonts_(fontsFor(base, baseDpi, unitsPerPoint(base, baseDpi, device))),
      metrics_(metricsFor(fonts_, device))
{}

double ChartFonts::width(TextSpan text, TextRole role) const
{
    return metrics_[static_cast<std::size_t>(role)].horizontalAdvance(toQString(text));
}

double ChartFonts::height(TextRole role) const
{
    return metrics_[static_cast<std::size_t>(role)].height();
}

} // namespace plotvue
