// The colours of a chart. All but those of the bars come from the desktop's palette.
#pragma once

#include "chart/plotdata.h"

#include <QColor>
#include <QPalette>

namespace plotvue {

QColor mixed(const QColor& from, const QColor& to, double share); // share 0: `from`, 1: `to`

struct ChartInks {
    explicit ChartInks(const QPalette& palette);
    QColor paper, ink, soft, grid, axis, band; // band: the highlighted slot of the current point
};

struct BarColours {
    QColor fill;
    QColor outline; // invalid if the fill has enough contrast to the paper
};
// Colours with enough contrast to the light or dark paper of `inks`.
BarColours barColours(const PlotData::Series& series, const ChartInks& inks);

QPalette whitePaper();

} // namespace plotvue
