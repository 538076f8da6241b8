// Draws a chart that has been laid out.
#pragma once

#include "chart/layout.h"
#include "platform/desktop/chart/chartfonts.h"

#include <QPalette>
#include <QRectF>

class QPainter;

namespace plotvue {

QRectF toQRectF(const chart::Rect& box);

// How a line of text is aligned in its box.
inline constexpr int oneLine = Qt::TextSingleLine | Qt::TextDontClip | Qt::AlignVCenter;

// `layout` is that of `data`; `current` the point that is marked, -1: none. Covers the whole paper.
void paintChart(QPainter& painter, const chart::PlotData& data, const chart::Layout& layout,
                const QPalette& palette, const ChartFonts& fonts, int current);

// The card that reads a point out, beside its slot.
void paintReadout(QPainter& painter, const chart::PlotData& data, const chart::Layout& layout,
                  const QPalette& palette, const ChartFonts& fonts, int current);

} // namespace plotvue
