#include "desktop/smallwidgets.h"

#include "desktop/displaytext.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace plotvue {

TextLine::TextLine(const TextBox& declared, Property<Text>& text, QWidget* parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setFrame(false);
    setAccessibleName(toQString(declared.spokenName));
    QPalette flat;
    flat.setColor(QPalette::Base, Qt::transparent);
    setPalette(flat);
    text.changed = [this, &text] {
        setText(displayTextOnOneLine(*text));
        setCursorPosition(0);
    };
    text.changed();
}

void TextLine::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        emit copyKeyPressed(); // the toolkit's own copy would lose the captured screen
    else
        QLineEdit::keyPressEvent(event);
}

void TextList::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        event->ignore();
    else
        QListWidget::keyPressEvent(event);
}

void OptionButton::showChecked(bool checked)
{
    clicking_ = true;
    setChecked(checked);
    clicking_ = false;
}

void OptionButton::nextCheckState()
{
    clicking_ = true;
    QRadioButton::nextCheckState();
    clicking_ = false;
}

void OptionButton::checkStateSet()
{
    QRadioButton::checkStateSet();
    // Queued, because the previously chosen option is still checked now.
    if (!clicking_ && isVisible() && isChecked())
        QMetaObject::invokeMethod(
            this, [this] { emit clicked(true); }, Qt::QueuedConnection);
}

void ArrowButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    const double size = fontMetrics().height() * .7, head = size * .38;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center() - QPointF(size / 2, 0));
    painter.setPen(
        QPen(palette().color(QPalette::ButtonText), size / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath arrow({size, 0});
    arrow.lineTo(0, 0);
    arrow.moveTo(head, -head);
    arrow.lineTo(0, 0);
    arrow.lineTo(head, head);
    painter.drawPath(arrow);
}

GainLossPicture::GainLossPicture(const PictureBox& declared, QWidget* parent)
    : QWidget(parent),
      symbol_(declared.symbol)
{
    setAccessibleName(toQString(declared.spokenName));
    setToolTip(accessibleName());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize GainLossPicture::sizeHint() const
{
    const int side = fontMetrics().height() * 3 / 2;
    return {side, side};
}

void GainLossPicture::paintEvent(QPaintEvent*)
{
    const bool gain = symbol_ == PictureBox::Symbol::Gain;
    const QRectF box = QRectF(rect()).adjusted(3, 4, -3, -4);
    const double base = gain ? box.bottom() : box.top(), tip = gain ? box.top() : box.bottom();
    const QPointF corners[] = {{box.left(), base}, {box.right(), base}, {box.center().x(), tip}};
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gain ? QColor(0x1A9C8F) : QColor(0xC4512D));
    painter.drawPolygon(corners, 3);
}

} // namespace plotvue
