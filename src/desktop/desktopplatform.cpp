#include "desktop/desktopplatform.h"

#include "desktop/assistive.h"
#include "desktop/clipboard.h"
#include "desktop/desktopwindow.h"
#include "desktop/displaytext.h"
#include "desktop/filedialog.h"
#include "desktop/process.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QWindow>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace plotvue {

namespace {

constexpr int maxLineWidth = 120; // in average characters

QWidget* windowInFront()
{
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all)
        if (window->isVisible() && qobject_cast<WindowWidget*>(window))
            return window;
    return nullptr;
}

// A message box is centred on its window, so the window manager must have placed the window before.
void waitUntilPlaced(const QWidget& window)
{
    QDeadlineTimer patience(std::chrono::milliseconds(300));
    while (!window.windowHandle()->isExposed() && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(1);
    }
}

// A message box whose text can be copied without losing the captured screen.
class Box : public QMessageBox {
public:
    explicit Box(QWidget* parent) : QMessageBox(parent) { setTextInteractionFlags(Qt::NoTextInteraction); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!event->matches(QKeySequence::Copy))
            return QMessageBox::keyPressEvent(event);
        try {
            putOnClipboard(toText(text()), readClipboard());
        } catch (const Failure&) {
            // Nothing is said: the box is still open, and Ctrl+C can be pressed again.
        }
    }
};

void showBox(QMessageBox::Icon icon, TextSpan title, TextSpan text, const QString& button)
{
    QWidget* window = windowInFront();
    if (window)
        waitUntilPlaced(*window);
    Box box(window);
    box.setIcon(icon);
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(title.empty() ? QStringLiteral("PlotVue") : toQString(title));
    box.setText(displayText(text));
    // Widen the box for a text with line breaks. By default it wraps lines at 500 pixels.
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (label && box.text().contains(u'\n'))
        label->setMinimumWidth(
            qMin(label->sizeHint().width(), maxLineWidth * label->fontMetrics().averageCharWidth()));
    // A standard button would load the desktop's icon theme for its icon.
    box.setDefaultButton(box.addButton(button, QMessageBox::AcceptRole));
    box.exec();
}

} // namespace

DesktopPlatform::DesktopPlatform()
{
    // At times all windows are hidden, so the toolkit must not quit then; the application decides when to
    // end.
    QApplication::setQuitOnLastWindowClosed(false);
    // A Wayland desktop uses this name to find the installed desktop entry and its icon.
    QApplication::setDesktopFileName(QStringLiteral("io.github.plotvue.PlotVue"));
    offerWindowsToAssistiveTechnology();
    keepNoSettings();
}

DesktopPlatform::~DesktopPlatform()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Text DesktopPlatform::readClipboard()
{
    if (clipboardNeedsFocus()) {
        presenter_.settle();
        waitForFocus();
    }
    return plotvue::readClipboard();
}

std::unique_ptr<NativeWindow> DesktopPlatform::build(std::shared_ptr<Controls> controls)
{
    return std::make_unique<DesktopWindow>(presenter_, menus_, std::move(controls));
}

int DesktopPlatform::choosePrinter(NativeWindow& window)
{
    presenter_.settle();
    return printing_.choose(static_cast<DesktopWindow&>(window).widget());
}

void DesktopPlatform::print(NativeWindow& window)
{
    printing_.print(static_cast<DesktopWindow&>(window).widget());
}

void DesktopPlatform::copyText(TextSpan text)
{
    putOnClipboard(text, clipboardText());
}

void DesktopPlatform::message(TextSpan title, TextSpan text)
{
    presenter_.settle();
    showBox(QMessageBox::NoIcon, title, text, QMessageBox::tr("OK"));
}

void DesktopPlatform::reportError(TextSpan sentence)
{
    writeError(u"PlotVue: " + Text(sentence));
    presenter_.settle();
    showBox(QMessageBox::Critical, {}, sentence, QMessageBox::tr("OK"));
    leave(EXIT_FAILURE);
}

void DesktopPlatform::waitForMoreLines(int lines)
{
    writeError(u"PlotVue: the copied screen has fewer than 20 lines; PlotVue waits for the rest.");
    presenter_.settle();
    // Resembles the "not responding" box of a desktop: the windows under it are still painted but ignore all
    // input.
    const QString text =
        QStringLiteral(
            "PlotVue is waiting for the rest of the copied screen.\n"
            "\n"
            "The copied text has %1, not counting empty ones. "
            "A whole screen has 24; at least 20 are needed.\n"
            "\n"
            "Copy the whole screen, and set the terminal to keep the blanks at the ends of its lines.")
            .arg(lines == 1 ? QStringLiteral("1 line") : QStringLiteral("%1 lines").arg(lines));
    showBox(QMessageBox::Warning, {}, toText(text), QStringLiteral("Close PlotVue"));
    leave(EXIT_FAILURE);
}

void DesktopPlatform::finish()
{
    leave(EXIT_SUCCESS);
}

void DesktopPlatform::leave(int status)
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all)
        window->hide();
    std::fflush(nullptr);
    if (!clipboardNeedsHandover())
        endProcess(status);
    // Queued, because while the process starts, its event loop does not run yet, and exit() would do nothing.
    QMetaObject::invokeMethod(
        qApp, [status] { QCoreApplication::exit(status); }, Qt::QueuedConnection);
}

} // namespace plotvue
