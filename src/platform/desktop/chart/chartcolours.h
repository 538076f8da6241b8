// The colours of a chart, all but the bars' taken from the palette.
#pragma once

#include "chart/figures.h"

#include <QColor>
#include <QPalette>

namespace plotvue {

QColor mixed(const QColor& from, const QColor& to, double share); // share 0: `from`, 1: `to`

struct ChartInks {
    explicit ChartInks(const QPalette& palette);
    QColor paper, ink, soft, grid, axis, band; // band: behind the current point
};

struct BarColours {
    QColor fill;
    QColor outline; // invalid: the fill stands out from the paper by itself
};
// Readable on the paper of `inks`, light or dark.
BarColours barColours(const chart::Figures::Series& series, const ChartInks& inks);

QPalette whitePaper();

} // namespace plotvue
