// The fonts of a chart, derived from the window's font, and the size of text in them.
#pragma once

#include "chart/layout.h"

#include <QFont>
#include <QFontMetricsF>

#include <array>

namespace plotvue {

class ChartFonts : public Metrics {
public:
    // Fonts that take as many units on `device` as `base` takes pixels at `baseDpi`.
    ChartFonts(const QFont& base, int baseDpi, const QPaintDevice& device);

    const QFont& font(TextRole role) const { return fonts_[static_cast<std::size_t>(role)]; }
    double width(TextSpan text, TextRole role) const override;
    double height(TextRole role) const override;

private:
    std::array<QFont, textRoles> fonts_; // indexed by TextRole
    std::array<QFontMetricsF, textRoles> metrics_;
};

} // namespace plotvue
