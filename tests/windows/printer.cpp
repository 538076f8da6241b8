// printer NAME COPIES: starts PlotVue, which charts the clipboard's text, and presses Print. No printer
// dialog opens: this program chooses the printer NAME and the number of copies.
#include "app/application.h"
#include "desktop/desktopplatform.h"
#include "desktop/desktopwindow.h"
#include "support/windows.h"

#include <QApplication>
#include <QPrinter>

#include <cstdlib>

namespace {

using namespace plotvue;

class AnsweredPrinting : public Printing {
public:
    QString printer;
    int copies = 0;

protected:
    bool ask(QPrinter& chosen, QWidget&) override
    {
        chosen.setPrinterName(printer);
        chosen.setCopyCount(copies);
        return chosen.isValid();
    }
};

class AnsweredDesktop : public DesktopPlatform {
public:
    AnsweredPrinting printing;
    int jobs = 0;

    int choosePrinter(NativeWindow& window) override
    {
        return printing.choose(static_cast<DesktopWindow&>(window).widget());
    }

    void print(NativeWindow& window) override
    {
        printing.print(static_cast<DesktopWindow&>(window).widget());
        ++jobs;
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    AnsweredDesktop platform;
    platform.printing.printer = QString::fromLocal8Bit(argv[1]);
    platform.printing.copies = std::atoi(argv[2]);
    Application plotVue(platform);
    plotVue.start();
    QApplication::processEvents();
    test::windowNamed(plotVue, "frmProduct")->controls().press("cmdPrint");
    return platform.jobs == platform.printing.copies ? EXIT_SUCCESS : EXIT_FAILURE;
}
