// Paints a bar, or its swatch in a legend.
#pragma once

#include "desktop/chart/chartcolours.h"

#include <QRectF>

class QPainter;

namespace plotvue {

enum class BarEnd { Square, RoundTop, RoundBottom };

struct BarLook {
    BarColours colours;
    QColor paper;
    bool projection = false; // painted as a light tint with hatching and a dashed outline
};

void paintBar(QPainter& painter, const QRectF& box, const BarLook& look, BarEnd end);

} // namespace plotvue
