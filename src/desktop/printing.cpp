#include "desktop/printing.h"

#include "capture/failure.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace plotvue {

Printing::Printing() = default;
Printing::~Printing() = default;

bool Printing::ask(QPrinter& printer, QWidget& window)
{
    return QPrintDialog(&printer, &window).exec() == QDialog::Accepted;
}

int Printing::choose(QWidget& window)
{
    if (!printer_)
        printer_ = std::make_unique<QPrinter>();
    printer_->setPageOrientation(window.width() > window.height() ? QPageLayout::Landscape
                                                                  : QPageLayout::Portrait);
    if (!ask(*printer_, window))
        throw Failure{u"The printer dialog was cancelled."};
    // The application prints each copy as a job of its own, so the driver must print one.
    const int copies = printer_->copyCount();
    printer_->setCopyCount(1);
    if (printer_->outputFileName().isEmpty())
        makeDefaultPrinter(printer_->printerName());
    return copies;
}

void Printing::print(QWidget& window)
{
    if (!printer_)
        throw Failure{u"No printer has been chosen."};
    printer_->setDocName(window.windowTitle());
    printer_->setResolution(window.logicalDpiY());
    QPainter painter;
    if (!painter.begin(printer_.get()))
        throw Failure{u"The printer does not answer."};
    drawOnPaper(window, painter, QRectF(QPointF(0, 0), printer_->pageRect(QPrinter::DevicePixel).size()));
    if (!painter.end() || printer_->printerState() == QPrinter::Error)
        throw Failure{u"The printer does not answer."};
}

} // namespace plotvue
