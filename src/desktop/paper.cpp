#include "desktop/chart/chartwidget.h"
#include "desktop/printing.h"

#include <QAbstractScrollArea>
#include <QLayout>
#include <QPainter>
#include <QPicture>

namespace plotvue {

namespace {

QPalette lightPalette()
{
    QPalette paper(QColor(0xF0F0F0), Qt::white);
    paper.setColor(QPalette::AlternateBase, QColor(0xF6F6F6));
    paper.setColor(QPalette::Highlight, QColor(0xD5E1F5));
    paper.setColor(QPalette::HighlightedText, Qt::black);
    return paper;
}

// Gives the window light colours as long as this object exists.
class LightColours {
public:
    explicit LightColours(QWidget& window) : window_(window) { window.setPalette(lightPalette()); }
    LightColours(const LightColours&) = delete;
    ~LightColours() { window_.setPalette({}); } // restores the desktop's colours

private:
    QWidget& window_;
};

// Records the widget as vectors. Without this step, the toolkit would draw widgets on a printer as bitmaps.
QPicture pictureOf(QWidget& widget)
{
    QPicture picture;
    QPainter painter(&picture);
    if (qobject_cast<QAbstractScrollArea*>(widget.parentWidget()))
        painter.setClipRect(widget.rect()); // only a part of scrolled content is visible
    widget.render(&painter, {}, {}, {});
    return picture;
}

void drawWidget(QWidget& widget, QWidget& window, QPainter& painter)
{
    painter.save();
    painter.translate(widget.mapTo(&window, QPoint(0, 0)));
    if (auto* chart = qobject_cast<ChartWidget*>(&widget))
        chart->paint(painter);
    else if (&widget != &window)
        painter.drawPicture(0, 0, pictureOf(widget));
    painter.restore();
    for (QObject* child : widget.children())
        if (auto* inner = qobject_cast<QWidget*>(child); inner && !inner->isWindow() && !inner->isHidden())
            drawWidget(*inner, window, painter);
}

} // namespace

void drawOnPaper(QWidget& window, QPainter& painter, const QRectF& page)
{
    window.ensurePolished();
    if (window.layout())
        window.layout()->activate();
    const LightColours light(window);
    const double scale = qMin(page.width() / window.width(), page.height() / window.height());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::LosslessImageRendering);
    painter.translate(page.center().x() - window.width() * scale / 2, page.top());
    painter.scale(scale, scale);
    drawWidget(window, window, painter);
}

} // namespace plotvue
