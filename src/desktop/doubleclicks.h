// Keeps the second press of a double-click from operating a window that the first one brought under the
// mouse.
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>

class QMouseEvent;

namespace plotvue {

// A press with the same button, within the system's double-click time and at the same place, is dropped if it
// lands in another window than the one before. So is its release. Everything else passes: a third press, and
// all that comes from keys and assistive technology.
class DoubleClicks : public QObject {
    Q_OBJECT

public:
    DoubleClicks(); // watches the application

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool drops(QObject& window, const QMouseEvent& press);
    bool follows(const QMouseEvent& press) const;

    // Of the last press.
    QPointer<QObject> window_;
    QPointF place_; // on the screen
    quint64 time_ = 0;
    Qt::MouseButton button_ = Qt::NoButton;  // none if the press was dropped
    Qt::MouseButton dropped_ = Qt::NoButton; // of a dropped press whose release is still to be dropped
};

} // namespace plotvue
