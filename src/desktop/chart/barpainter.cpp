#include "desktop/chart/barpainter.h"

#include <QList>
#include <QPainter>
#include <QPainterPath>

namespace plotvue {

namespace {

constexpr double radius = 2, minRoundedWidth = 8, hatchDistance = 5;

// Draws only the rounded end as a path, because filling a large path is slow. The path overlaps the rectangle
// by one unit so that no seam is printed.
void fillRounded(QPainter& painter, const QRectF& box, BarEnd end, const QColor& colour)
{
    const double r = qMin(radius, qMin(box.width() / 4, box.height() / 2));
    const bool top = end == BarEnd::RoundTop;
    const double beforeHead = top ? box.top() + r : box.bottom() - r;
    painter.fillRect(top ? box.adjusted(0, r, 0, 0) : box.adjusted(0, 0, 0, -r), colour);

    const double head = top ? box.top() : box.bottom();
    const double foot = top ? qMin(beforeHead + 1, box.bottom()) : qMax(beforeHead - 1, box.top());
    QPainterPath path;
    path.moveTo(box.left(), foot);
    path.lineTo(box.left(), beforeHead);
    path.quadTo(box.left(), head, box.left() + r, head);
    path.lineTo(box.right() - r, head);
    path.quadTo(box.right(), head, box.right(), beforeHead);
    path.lineTo(box.right(), foot);
    path.closeSubpath();
    painter.fillPath(path, colour);
}

// Computes lines that end at the box, because clipping makes printed pages large and slow.
QList<QLineF> hatching(const QRectF& box)
{
    QList<QLineF> lines;
    for (double c = hatchDistance / 2; c < box.width() + box.height(); c += hatchDistance) {
        const double from = qMax(0., c - box.height()), to = qMin(c, box.width());
        lines << QLineF(box.left() + from, box.top() + c - from, box.left() + to, box.top() + c - to);
    }
    return lines;
}

void paintProjection(QPainter& painter, const QRectF& box, const BarLook& look)
{
    const QColor& colour = look.colours.fill;
    painter.fillRect(box, mixed(colour, look.paper, .8));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mixed(colour, look.paper, .35), 1));
    painter.drawLines(hatching(box));
    painter.setPen(QPen(look.colours.outline.isValid() ? look.colours.outline : colour, 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box.adjusted(.5, .5, -.5, -.5));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void paintBar(QPainter& painter, const QRectF& box, const BarLook& look, BarEnd end)
{
    if (box.isEmpty())
        return;
    if (look.projection)
        return paintProjection(painter, box, look);
    const bool edged = look.colours.outline.isValid() && box.width() > 3 && box.height() > 3;
    if (end == BarEnd::Square || box.width() < minRoundedWidth) {
        painter.fillRect(box, edged ? look.colours.outline : look.colours.fill);
        if (edged)
            painter.fillRect(box.adjusted(1, 1, -1, -1), look.colours.fill);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    fillRounded(painter, box, end, edged ? look.colours.outline : look.colours.fill);
    if (edged)
        fillRounded(painter, box.adjusted(1, 1, -1, -1), end, look.colours.fill);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace plotvue
