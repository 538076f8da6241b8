#include "platform/desktop/presenter.h"

#include "platform/desktop/desktopwindow.h"

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
    // Windows are shown before others are hidden, so that the desktop is never seen between them.
    for (DesktopWindow* window : windows_)
        if (window->wanted())
            window->settle();
    for (DesktopWindow* window : windows_)
        if (!window->wanted())
            window->settle();
}

} // namespace plotvue
