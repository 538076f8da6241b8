#include "platform/desktop/stage.h"

#include "platform/desktop/desktopview.h"

namespace plotvue {

void Stage::settleLater()
{
    if (pending_)
        return;
    pending_ = true;
    QMetaObject::invokeMethod(this, &Stage::settle, Qt::QueuedConnection);
}

void Stage::settle()
{
    pending_ = false;
    // What comes is there before what goes, so that the desktop behind does not shine through.
    for (DesktopView* view : views_)
        if (view->visible())
            view->settle();
    for (DesktopView* view : views_)
        if (!view->visible())
            view->settle();
}

} // namespace plotvue
