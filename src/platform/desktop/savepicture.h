// "Save Picture…" of a chart.
#pragma once

#include <QFileDialog>

namespace plotvue {

class ChartWidget;

// Asks for a file and writes the picture of the chart there; throws Failure as writePicture() does. The
// dialog begins in `folder`, which afterwards is the one where the picture was saved; if it is empty, in the
// user's folder for pictures.
void savePicture(ChartWidget& chart, QString& folder);

// `path` with the extension of the chosen filter, unless it ends in one of a format that is known.
QString withExtension(const QString& path, const QString& filter);

// Whether to use the system's own dialog. Each operating system has its own implementation.
QFileDialog::Options fileDialogOptions();

} // namespace plotvue
