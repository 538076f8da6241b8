// The colours of a chart. All but those of the bars come from the desktop's palette.
#pragma once

#include "chart/plotdata.h"

#include <QColor>
#include <QPalette>

namespace plotvue {

QColor mixed(const QColor& from, const QColor& to, double share); // share 0: `from`, 1: `to`

struct ChartInks {
    explicit ChartInks(const QPalette& palette);
    QColor paper, ink, soft, grid, axis, band; // band: of the current point's slot
};

struct BarColours {
    QColor fill;
    QColor outline; // invalid where the fill needs none to be seen on the paper
};
// Readable on the paper of `inks`, light or dark.
BarColours barColours(const chart::PlotData::Series& series, const ChartInks& inks);

QPalette whitePaper();

} // namespace plotvue
