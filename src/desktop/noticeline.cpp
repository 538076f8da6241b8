#include "desktop/noticeline.h"

#include "desktop/displaytext.h"

#include <QAccessible>
#include <QPainter>

namespace plotvue {

namespace {

constexpr int padding = 6;
constexpr int longestNotice = 90; // characters

} // namespace

NoticeLine::NoticeLine(Property<Text>& notice, QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    notice.changed = [this, &notice] { showNotice(displayTextOnOneLine(*notice)); };
    notice.changed();
}

void NoticeLine::showNotice(const QString& text)
{
    setVisible(false); // assistive technology is told when an alert appears, not when its text changes
    text_ = text;
    setAccessibleName(text);
    fitHeight();
    setVisible(!text.isEmpty());
}

// The text is to the right of the symbol, which is as wide as a line is high.
QRect NoticeLine::textBox() const
{
    return rect().adjusted(fontMetrics().height() + 2 * padding, padding, -padding, -padding);
}

int NoticeLine::maxHeight(int width) const
{
    const int room = qMax(1, width - fontMetrics().height() - 3 * padding);
    const int lines =
        longestNotice * fontMetrics().averageCharWidth() / room + 2; // a line ends between words
    return lines * fontMetrics().lineSpacing() + 2 * padding;
}

void NoticeLine::fitHeight()
{
    const QRect unlimited(0, 0, qMax(1, textBox().width()), QWIDGETSIZE_MAX);
    setFixedHeight(fontMetrics().boundingRect(unlimited, Qt::TextWordWrap, text_).height() + 2 * padding);
}

void NoticeLine::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeLine::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitHeight();
}

void NoticeLine::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitHeight();
}

void NoticeLine::paintEvent(QPaintEvent*)
{
    const QColor ink = palette().color(QPalette::ToolTipText);
    QColor edge = ink;
    edge.setAlphaF(.35F);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), 3, 3);

    // The symbol: the letter i in a circle.
    const double side = fontMetrics().height(), stroke = side / 10;
    painter.translate(padding + side / 2, height() / 2.);
    painter.setPen(QPen(ink, stroke));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(), side * .44, side * .44);
    painter.fillRect(QRectF(-stroke * .6, -side * .07, stroke * 1.2, side * .32), ink);
    painter.fillRect(QRectF(-stroke * .6, -side * .25, stroke * 1.2, stroke * 1.2), ink);
    painter.resetTransform();

    painter.setPen(ink);
    painter.drawText(textBox(), Qt::TextWordWrap | Qt::AlignVCenter, text_);
}

} // namespace plotvue
