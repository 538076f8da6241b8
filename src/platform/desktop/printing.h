// The printer dialog, and a window's client area on paper.
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

    // Returns the number of copies; the printer chosen becomes the default printer and is kept for the next
    // time. Throws Failure when the dialog is cancelled.
    double choose(QWidget& window);

    // One job. Throws Failure when it cannot be made.
    void print(QWidget& window);

protected:
    // Shows the dialog, which changes the printer; false when it is cancelled.
    virtual bool ask(QPrinter& printer, QWidget& window);

private:
    std::unique_ptr<QPrinter> printer_; // made when somebody first prints: looking for printers takes time
};

// Draws the client area as vectors on white paper, as large as `page` allows. The painter's device must have
// the window's resolution, so that one unit of the painter is one pixel of the window.
void drawOnPaper(QWidget& window, QPainter& painter, const QRectF& page);

// The system's default printer for this user. Does nothing on a Unix where printing does not go through CUPS:
// other print systems have no such notion of their own.
void makeDefaultPrinter(const QString& name);

} // namespace plotvue
