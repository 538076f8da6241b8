// One bar, or the swatch that stands for it.
#pragma once

#include "platform/desktop/chart/chartcolours.h"

#include <QRectF>

class QPainter;

namespace plotvue {

enum class BarEnd { Square, RoundTop, RoundBottom };

struct BarLook {
    BarColours colours;
    QColor paper;
    bool projection = false; // a light tint, hatched, with a dashed outline
};

void paintBar(QPainter& painter, const QRectF& box, const BarLook& look, BarEnd end);

} // namespace plotvue
