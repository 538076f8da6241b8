#include "platform/desktop/chart/chart_fonts.h"

#include <QPaintDevice>

namespace plotvue {

namespace {

constexpr double smallSize = .92, largeSize = 1.5;

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

// A size in pixels means pixels of every device.
double unitsPerPoint(const QFont& base, int baseDpi, const QPaintDevice& device)
{
    return base.pointSizeF() > 0 ? double(baseDpi) / qMax(1, device.logicalDpiY()) : 1;
}

std::array<QFont, 3> fontsFor(const QFont& base, double factor)
{
    return {resized(base, smallSize * factor), resized(base, factor),
            resized(base, largeSize * factor, QFont::DemiBold)};
}

QFontMetricsF metricsOf(const QFont& font, const QPaintDevice& device)
{
    return QFontMetricsF(font, &device);
}

} // namespace

QString toQString(TextView text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

ChartFonts::ChartFonts(const QFont& base, int baseDpi, const QPaintDevice& device)
    : fonts_(fontsFor(base, unitsPerPoint(base, baseDpi, device))),
      metrics_{metricsOf(fonts_[0], device), metricsOf(fonts_[1], device), metricsOf(fonts_[2], device)}
{}

double ChartFonts::width(TextView text, chart::TextRole role) const
{
    return metrics_[static_cast<std::size_t>(role)].horizontalAdvance(toQString(text));
}

double ChartFonts::height(chart::TextRole role) const
{
    return metrics_[static_cast<std::size_t>(role)].height();
}

} // namespace plotvue
