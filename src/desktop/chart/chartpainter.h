// Paints a chart from its layout.
#pragma once

#include "chart/layout.h"
#include "desktop/chart/chartfonts.h"

#include <QPalette>
#include <QRectF>

class QPainter;

namespace plotvue {

QRectF toQRectF(const Rect& box);

// Text flags for a line of text in its box.
inline constexpr int oneLine = Qt::TextSingleLine | Qt::TextDontClip | Qt::AlignVCenter;

// `layout` must be the layout of `data`. `current` is the point to highlight; -1: none. Paints the whole area
// of the layout.
void paintChart(QPainter& painter, const PlotData& data, const Layout& layout, const QPalette& palette,
                const ChartFonts& fonts, int current);

// Paints the read-out of the current point: a card beside its slot.
void paintReadout(QPainter& painter, const PlotData& data, const Layout& layout, const QPalette& palette,
                  const ChartFonts& fonts, int current);

} // namespace plotvue
