// The printer dialog, and printing of a window's client area.
#pragma once

#include <QString>

#include <memory>

class QPainter;
class QPrinter;
class QRectF;
class QWidget;

namespace plotvue {

class Printing {
public:
    Printing();
    virtual ~Printing();

    // Shows the printer dialog and returns the number of copies. The chosen printer becomes the default
    // printer and is preselected the next time. Throws Failure if the dialog is cancelled.
    int choose(QWidget& window);

    // Prints the client area as one job. Throws Failure if that fails.
    void print(QWidget& window);

protected:
    // Shows the dialog, which sets up `printer`; returns false if it is cancelled.
    virtual bool ask(QPrinter& printer, QWidget& window);

private:
    std::unique_ptr<QPrinter> printer_; // created on the first print, because finding the printers takes time
};

// Draws the client area as vectors on white paper, as large as `page` allows. The painter's device must have
// the window's resolution, so that one unit of the painter is one pixel of the window.
void drawOnPaper(QWidget& window, QPainter& painter, const QRectF& page);

// Makes the printer the default for this user. On Unix it does nothing without CUPS, because other print
// systems have no default printer per user.
void makeDefaultPrinter(const QString& name);

} // namespace plotvue
