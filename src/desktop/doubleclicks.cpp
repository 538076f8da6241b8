#include "desktop/doubleclicks.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

namespace plotvue {

namespace {

// A Wayland desktop does not tell where its windows are, so places in two windows cannot be compared.
bool placesAreKnown()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

bool isSamePlace(QPointF one, QPointF other)
{
    const int distance = QGuiApplication::styleHints()->mouseDoubleClickDistance();
    return qAbs(one.x() - other.x()) <= distance && qAbs(one.y() - other.y()) <= distance;
}

} // namespace

DoubleClicks::DoubleClicks()
{
    qGuiApp->installEventFilter(this);
}

bool DoubleClicks::follows(const QMouseEvent& press) const
{
    const auto interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    return press.button() == button_ && press.timestamp() - time_ < interval &&
           (isSamePlace(press.globalPosition(), place_) || !placesAreKnown());
}

bool DoubleClicks::eventFilter(QObject* receiver, QEvent* event)
{
    if (!receiver->isWindowType()) // every event reaches the window first, then its widgets
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return drops(*receiver, static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        if (static_cast<const QMouseEvent&>(*event).button() != dropped_)
            return false;
        dropped_ = Qt::NoButton;
        return true;
    default:
        return false;
    }
}

bool DoubleClicks::drops(QObject& window, const QMouseEvent& press)
{
    if (press.type() == QEvent::MouseButtonDblClick && press.button() == dropped_)
        return true; // the toolkit reports a second press first as a press, then as a double-click
    const bool drop = &window != window_ && follows(press);
    dropped_ = drop ? press.button() : Qt::NoButton;
    button_ = drop ? Qt::NoButton : press.button();
    window_ = &window;
    place_ = press.globalPosition();
    time_ = press.timestamp();
    return drop;
}

} // namespace plotvue
