#include "desktop/desktopwindow.h"

#include "desktop/presenter.h"
#include "desktop/widgets.h"

#include <QCoreApplication>
#include <QWindow>

namespace plotvue {

DesktopWindow::DesktopWindow(Presenter& presenter, Menus& menus, std::shared_ptr<Controls> controls)
    : presenter_(presenter),
      menus_(menus),
      controls_(std::move(controls))
{
    presenter_.enter(*this);
}

DesktopWindow::~DesktopWindow()
{
    presenter_.leave(*this);
    if (!widget_)
        return;
    if (widget_->isVisible())
        savePosition();
    widget_->retire();
}

void DesktopWindow::show()
{
    wanted_ = raise_ = true;
    presenter_.settleLater();
}

void DesktopWindow::hide()
{
    wanted_ = false;
    presenter_.settleLater();
}

void DesktopWindow::settle()
{
    const bool seen = widget_ && widget_->isVisible();
    if (wanted_ && raise_ && widget().isMinimized())
        widget().setWindowState(widget().windowState() & ~Qt::WindowMinimized);
    if (wanted_ && !seen) {
        restorePosition();
        widget().show();
        // Deliver the widgets' update requests now. They are then merged with the first expose event, and the
        // window is painted once.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    } else if (wanted_ && raise_) {
        widget_->raise();
        widget_->activateWindow();
    } else if (!wanted_ && seen) {
        savePosition();
        widget_->hide();
    }
    raise_ = false;
}

void DesktopWindow::savePosition()
{
    presenter_.places[controls_->declaration.name] = widget_->geometry().topLeft();
}

void DesktopWindow::restorePosition()
{
    const auto place = presenter_.places.find(controls_->declaration.name);
    if (place == presenter_.places.end() || widget().windowState() != Qt::WindowNoState)
        return;
    // If the native window exists, move it directly: the widget does not pass on its position, and the window
    // manager would choose another.
    if (QWindow* native = widget().windowHandle())
        native->setPosition(place->second);
    else
        widget().setGeometry(QRect(place->second, widget().size()));
}

WindowWidget& DesktopWindow::widget()
{
    if (!widget_) {
        widget_ = new WindowWidget(controls_);
        buildWidgets(*widget_, menus_);
    }
    return *widget_;
}

} // namespace plotvue
