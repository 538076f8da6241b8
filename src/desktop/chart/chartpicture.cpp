#include "desktop/chart/chartpicture.h"

#include "capture/failure.h"
#include "desktop/chart/chartwidget.h"
#include "desktop/chart/qtext.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>

namespace plotvue {

namespace {

constexpr int enlargement = 2; // sharp on paper and on screens of a high resolution
constexpr double metersPerInch = .0254, pointsPerInch = 72;

} // namespace

QImage pictureOf(const ChartWidget& chart)
{
    // A format with transparency: on other pictures the toolkit may give text coloured edges, which suit only
    // the pixels of a screen.
    QImage picture(chart.size() * enlargement, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        throw Failure{u"There is not enough memory for the picture."};
    // Documents show the picture in the chart's own size.
    picture.setDotsPerMeterX(qRound(chart.logicalDpiX() * enlargement / metersPerInch));
    picture.setDotsPerMeterY(qRound(chart.logicalDpiY() * enlargement / metersPerInch));
    QPainter painter(&picture);
    painter.scale(enlargement, enlargement);
    chart.paint(painter, enlargement);
    painter.end();
    return std::move(picture).convertToFormat(QImage::Format_RGB32);
}

QByteArray encoded(const QImage& picture, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format);
    return bytes;
}

QByteArray pdfOf(const ChartWidget& chart)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(toQString(titlesInOneLine(chart.chart())));
    writer.setCreator(QStringLiteral("PlotVue"));
    writer.setResolution(chart.logicalDpiY()); // so that a unit of the painter is a unit of the widget
    const double points = pointsPerInch / chart.logicalDpiY();
    const QSizeF page(std::ceil(chart.width() * points),
                      std::ceil(chart.height() * points)); // a page has whole points
    writer.setPageSize(QPageSize(page, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter(&writer);
    chart.paint(painter);
    painter.end();
    return bytes;
}

} // namespace plotvue
