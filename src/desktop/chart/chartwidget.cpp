#include "desktop/chart/chartwidget.h"

#include "desktop/chart/chartaccessible.h"
#include "desktop/chart/chartcolours.h"
#include "desktop/chart/chartpainter.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace plotvue {

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    offerChartsToAssistiveTechnology();
    data_.emplace(chart_);
}

void ChartWidget::setChart(const Chart& chart)
{
    chart_ = chart;
    data_.emplace(chart_);
    layout_.reset();
    if (current_ >= points())
        setCurrentPoint(-1);
    update();
    emit chartChanged();
    if (announcing_)
        return;
    announcing_ = true; // one announcement for all changes of a redraw
    QMetaObject::invokeMethod(
        this,
        [this] {
            announcing_ = false;
            announceContent(*this);
        },
        Qt::QueuedConnection);
}

const ChartFonts& ChartWidget::fonts() const
{
    if (!fonts_)
        fonts_.emplace(font(), logicalDpiY(), *this);
    return *fonts_;
}

const Layout& ChartWidget::chartLayout() const
{
    if (!layout_ || layoutSize_ != size() || layoutScale_ != devicePixelRatioF()) {
        layoutSize_ = size();
        layoutScale_ = devicePixelRatioF();
        layout_ = layoutChart(*data_, {double(width()), double(height())}, fonts(), layoutScale_);
    }
    return *layout_;
}

void ChartWidget::setCurrentPoint(int point)
{
    const int wanted = point >= 0 && point < points() ? point : -1;
    if (wanted == current_)
        return;
    current_ = wanted;
    update();
    announceCurrentPoint(*this);
}

int ChartWidget::pointAt(QPoint position) const
{
    return rect().contains(position) ? chartLayout().slotAt(position.x(), position.y()) : -1;
}

QRect ChartWidget::pointRect(int point) const
{
    return toQRectF(chartLayout().slotBox(point)).toAlignedRect();
}

void ChartWidget::paint(QPainter& painter, double pixels) const
{
    const ChartFonts paperFonts(font(), logicalDpiY(), *painter.device());
    const Layout layout = layoutChart(*data_, {double(width()), double(height())}, paperFonts, pixels);
    painter.save();
    paintChart(painter, *data_, layout, whitePaper(), paperFonts, -1);
    painter.restore();
}

void ChartWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintChart(painter, *data_, chartLayout(), palette(), fonts(), current_);
    if (current_ >= 0)
        paintReadout(painter, *data_, chartLayout(), palette(), fonts(), current_);
    if (hasFocus() && byKey_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
    }
}

void ChartWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        fonts_.reset();
        layout_.reset();
    }
    QWidget::changeEvent(event);
    update();
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event)
{
    hovering_ = true;
    setCurrentPoint(pointAt(event->position().toPoint()));
}

void ChartWidget::leaveEvent(QEvent*)
{
    // A point that was chosen by key stays current when the mouse leaves.
    if (hovering_)
        setCurrentPoint(-1);
    hovering_ = false;
}

// The point that the key moves to; absent if the chart does not use the key.
std::optional<int> ChartWidget::pointForKey(const QKeyEvent& event) const
{
    const int last = points() - 1;
    if (last < 0 || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return {};
    switch (event.key()) {
    case Qt::Key_Right:
        return current_ < 0 ? 0 : qMin(current_ + 1, last);
    case Qt::Key_Left:
        return current_ < 0 ? last : qMax(current_ - 1, 0);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    case Qt::Key_Escape:
        return current_ < 0 ? std::nullopt : std::optional(-1);
    default:
        return {};
    }
}

bool ChartWidget::event(QEvent* event)
{
    // The chart's keys take precedence over the window's shortcuts: Esc first hides the read-out.
    if (event->type() == QEvent::ShortcutOverride && pointForKey(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void ChartWidget::keyPressEvent(QKeyEvent* event)
{
    const std::optional<int> point = pointForKey(*event);
    if (!point)
        return QWidget::keyPressEvent(event);
    hovering_ = false;
    byKey_ = true;
    setCurrentPoint(*point);
    event->accept();
}

void ChartWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    byKey_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void ChartWidget::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    const bool within =
        event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason;
    if (within && !hovering_)
        setCurrentPoint(-1);
    update();
}

} // namespace plotvue
