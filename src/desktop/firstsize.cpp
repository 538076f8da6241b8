#include "desktop/firstsize.h"

#include "desktop/windowwidget.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWindow>

namespace plotvue {

namespace {

QMargins expectedFrame(const WindowWidget& window)
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget* other : all)
        if (other->isVisible() && qobject_cast<const WindowWidget*>(other))
            if (const QMargins frame = other->windowHandle()->frameMargins(); !frame.isNull())
                return frame;
    const int line = window.fontMetrics().height(), border = line * 2 / 3;
    return {border, line * 5 / 2, border, border}; // about as wide as the widest of the usual frames
}

QRect withFrame(const WindowWidget& window)
{
    // frameGeometry() may not know the current frame yet.
    return window.geometry().marginsAdded(window.windowHandle()->frameMargins());
}

// Shrinks the window if it and its frame turn out to be larger than the screen.
void fitToScreen(WindowWidget& window)
{
    const QRect room = window.screen()->availableGeometry();
    const QSize excess = (withFrame(window).size() - room.size()).expandedTo({0, 0});
    if (window.windowState() != Qt::WindowNoState || excess.isNull())
        return;
    window.resize(window.size() - excess);
    // The smaller window may still extend beyond an edge. If it cannot be made small enough for the screen,
    // its title bar must be visible.
    const QRect frame = withFrame(window);
    window.move(qMax(room.left(), qMin(frame.left(), room.right() + 1 - frame.width())),
                qMax(room.top(), qMin(frame.top(), room.bottom() + 1 - frame.height())));
}

// Waits for the first time that the window is painted: then the desktop has framed and placed it.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(WindowWidget& window) : QObject(&window), window_(window)
    {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && window_.isVisible()) {
            QMetaObject::invokeMethod(
                &window_, [&window = window_] { fitToScreen(window); }, Qt::QueuedConnection);
            window_.removeEventFilter(this);
            deleteLater();
        }
        return false;
    }

private:
    WindowWidget& window_;
};

} // namespace

void setFirstSize(WindowWidget& window, QSize wanted)
{
    window.resize(wanted.boundedTo(window.screen()->availableSize().shrunkBy(expectedFrame(window))));
    new FirstPaint(window); // the window deletes it
}

} // namespace plotvue
