// "Save Picture…" of a chart.
#pragma once

#include <QString>

namespace plotvue {

class ChartWidget;

// Asks for a file and writes the picture of the chart there; throws Failure as writePicture() does. The
// dialog begins in `folder`, which afterwards is the one where the picture was saved; if it is empty, in the
// user's folder for pictures.
void savePicture(ChartWidget& chart, QString& folder);

// Writes the picture of the chart: as PDF if the path ends so, else as PNG. An older file is replaced as a
// whole. Throws Failure, and leaves the older file as it was, if the picture cannot be written.
void writePicture(const ChartWidget& chart, const QString& path);

// `path` with the extension of the chosen filter, unless it ends in one of a format that is known.
QString withExtension(const QString& path, const QString& filter);

} // namespace plotvue
