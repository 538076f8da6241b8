#include "desktop/desktopplatform.h"
#include "recording/observed.h"
#include "replay/desktopwidgets.h"
#include "replay/player.h"

#include <QApplication>
#include <QClipboard>
#include <QLocale>

namespace plotvue::replay {

namespace {

// The desktop platform with boxes and printer dialogs that are answered at once.
class AnsweringDesktop : public DesktopPlatform {
public:
    PrinterAnswer printer;

    // Shows and hides windows now instead of on return to the event loop.
    void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); }

    void message(TextSpan, TextSpan) override { settle(); }

    int choosePrinter(NativeWindow&) override
    {
        if (printer.kind == PrinterAnswer::Kind::Cancel)
            throw Failure{u"The printer dialog was cancelled."};
        return printer.kind == PrinterAnswer::Kind::Fail ? 1 : printer.copies;
    }

    void print(NativeWindow&) override
    {
        if (printer.kind == PrinterAnswer::Kind::Fail)
            throw Failure{u"The printer does not answer."};
    }

protected:
    void reportError(TextSpan) override {}
    void waitForMoreLines(int) override {}
    void finish() override {}
};

class DesktopStage : public Stage {
public:
    // Uses the QApplication that exists, or creates one: several stages may follow each other in one process.
    DesktopStage(int& argc, char** argv)
        : application_(QApplication::instance() ? nullptr : std::make_unique<QApplication>(argc, argv))
    {
        QLocale::setDefault(QLocale::c()); // the platform in memory writes a decimal point, too
    }

    Platform& platform() override { return platform_; }
    EventSource& events() override { return platform_; }
    void setPrinter(PrinterAnswer answer) override { platform_.printer = answer; }

    void setClipboard(const Text& text) override
    {
        if (text.empty())
            QApplication::clipboard()->clear();
        else
            QApplication::clipboard()->setText(
                QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())));
    }

    void settle() override
    {
        platform_.settle();
        QApplication::processEvents();
        // Deletes retired windows. No running event loop does so here.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    SeenWindow look(const Window& window) override { return seenOnWidgets(window); }
    void press(const Window& window, Name button) override { pressWidget(window, button); }
    void choose(const Window& window, Name group, int index) override { chooseWidget(window, group, index); }
    void clickRow(const Window& window, Name grid, int row) override { clickRowOfWidget(window, grid, row); }
    void close(const Window& window) override { closeWidget(window); }
    void copy(const Window& window, Name chartOrGrid) override { copyFromWidget(window, chartOrGrid); }

private:
    std::unique_ptr<QApplication> application_; // must exist before platform_
    Observed<AnsweringDesktop> platform_;
};

} // namespace

std::unique_ptr<Stage> desktopStage(int& argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<DesktopStage>(argc, argv);
}

} // namespace plotvue::replay
