#include "desktop/presenter.h"

#include "desktop/desktopwindow.h"

namespace plotvue {

void Presenter::settleLater()
{
    if (pending_)
        return;
    pending_ = true;
    QMetaObject::invokeMethod(this, &Presenter::settle, Qt::QueuedConnection);
}

void Presenter::settle()
{
    pending_ = false;
    // Show windows before hiding others, so that the desktop does not appear in between.
    for (DesktopWindow* window : windows_)
        if (window->wanted())
            window->settle();
    for (DesktopWindow* window : windows_)
        if (!window->wanted())
            window->settle();
}

} // namespace plotvue
