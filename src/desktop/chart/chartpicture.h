// A chart as a picture for other programs: on white, without the current point and the focus.
#pragma once

#include <QByteArray>
#include <QImage>

namespace plotvue {

class ChartWidget;

// Twice as many pixels as the widget has units in each direction. Throws Failure if there is not enough
// memory.
QImage pictureOf(const ChartWidget& chart);
QByteArray encoded(const QImage& picture, const char* format); // a format of QImageWriter, such as "PNG"

// A PDF document of one page of the widget's size, drawn as vectors.
QByteArray pdfOf(const ChartWidget& chart);

} // namespace plotvue
