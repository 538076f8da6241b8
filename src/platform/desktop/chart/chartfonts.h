// The fonts of a chart, all derived from the window's font, and how much room text takes in them.
#pragma once

#include "chart/layout.h"

#include <QFont>
#include <QFontMetricsF>

#include <array>

namespace plotvue {

class ChartFonts : public chart::Metrics {
public:
    // Fonts that are as large on `device` as `base` is at `baseDpi`.
    ChartFonts(const QFont& base, int baseDpi, const QPaintDevice& device);

    const QFont& font(chart::TextRole role) const { return fonts_[static_cast<std::size_t>(role)]; }
    double width(TextSpan text, chart::TextRole role) const override;
    double height(chart::TextRole role) const override;

private:
    std::array<QFont, chart::textRoles> fonts_; // by role
    std::array<QFontMetricsF, chart::textRoles> metrics_;
};

} // namespace plotvue
