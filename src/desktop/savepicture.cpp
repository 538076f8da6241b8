#include "desktop/savepicture.h"

#include "capture/failure.h"
#include "chart/filename.h"
#include "desktop/chart/chartpicture.h"
#include "desktop/chart/chartwidget.h"
#include "desktop/chart/qtext.h"
#include "desktop/filedialog.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QSaveFile>
#include <QStandardPaths>

namespace plotvue {

namespace {

const QLatin1String png("png"), pdf("pdf");

QStringList filters()
{
    return {QStringLiteral("PNG picture (*.png)"), QStringLiteral("PDF document (*.pdf)")};
}

QString extensionOf(const QString& filter)
{
    return filter == filters().at(1) ? pdf : png;
}

QString folderForPictures()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

bool mayReplace(QWidget& dialog, const QString& path)
{
    const QString question = QStringLiteral("%1 already exists.\nDo you want to replace it?");
    return QMessageBox::warning(&dialog, dialog.windowTitle(), question.arg(QFileInfo(path).fileName()),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

// The file that the user chooses; empty if the dialog is cancelled, or ends with its window.
QString ask(QWidget& window, const QString& name, const QString& folder)
{
    FileDialog owner = makeFileDialog(window);
    const QPointer<QFileDialog> dialog = owner.get();
    dialog->setWindowTitle(QStringLiteral("Save Picture"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDirectory(folder);
    dialog->setNameFilters(filters());
    dialog->setDefaultSuffix(png);
    dialog->selectFile(name + u'.' + png);
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog,
                     [&dialog](const QString& filter) { dialog->setDefaultSuffix(extensionOf(filter)); });
    QString path;
    while (path.isEmpty() && dialog->exec() == QDialog::Accepted && dialog) {
        const QString chosen = dialog->selectedFiles().value(0);
        path = withExtension(chosen, dialog->selectedNameFilter());
        // The dialog asks before it replaces a file, but it has not seen this name.
        if (path != chosen && QFileInfo::exists(path) && !mayReplace(*dialog, path)) {
            dialog->selectFile(QFileInfo(path).fileName());
            path.clear();
        }
    }
    if (!dialog)
        static_cast<void>(owner.release());
    return path;
}

// Writes the rest after a part was written, because only the next attempt tells why it was a part.
bool writeAll(QSaveFile& file, const QByteArray& bytes)
{
    for (qint64 done = 0, more = 0; done < bytes.size(); done += more) {
        more = file.write(bytes.constData() + done, bytes.size() - done);
        if (more < 0)
            return false;
    }
    return true;
}

QString extensionOfFile(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

} // namespace

void writePicture(const ChartWidget& chart, const QString& path)
{
    const QByteArray bytes = extensionOfFile(path) == pdf ? pdfOf(chart) : encoded(pictureOf(chart), "PNG");
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !writeAll(file, bytes) || !file.commit())
        throw Failure{u"The picture cannot be saved as " + toText(QDir::toNativeSeparators(path)) + u" (" +
                      toText(file.errorString()) + u")."};
}

QString withExtension(const QString& path, const QString& filter)
{
    const QString extension = extensionOfFile(path);
    return extension == png || extension == pdf ? path : path + u'.' + extensionOf(filter);
}

void savePicture(ChartWidget& chart, QString& folder)
{
    const QPointer<ChartWidget> shown(&chart);
    const Text name = fileName(titlesInOneLine(chart.chart()));
    const QString path =
        ask(*chart.window(), toQString(name), folder.isEmpty() ? folderForPictures() : folder);
    if (path.isEmpty() || !shown)
        return;
    writePicture(chart, path);
    folder = QFileInfo(path).absolutePath();
}

} // namespace plotvue
