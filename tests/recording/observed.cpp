#include "recording/observed.h"

#include <utility>

namespace plotvue {

ObservedWindow::ObservedWindow(Name windowName, std::unique_ptr<NativeWindow> own, EventSource& events)
    : name(windowName),
      own_(std::move(own)),
      events_(events)
{
    events_.windows[name] = this;
    events_.listener({.kind = Event::Kind::Load, .window = name});
}

// A window that is loaded anew is not unloaded: the new one is built before the old one goes.
ObservedWindow::~ObservedWindow()
{
    own_.reset();
    if (events_.windows.at(name) == this)
        events_.listener({.kind = Event::Kind::Unload, .window = name});
}

void ObservedWindow::show()
{
    own_->show();
    if (!std::exchange(visible_, true))
        events_.listener({.kind = Event::Kind::Show, .window = name});
}

void ObservedWindow::hide()
{
    visible_ = false;
    own_->hide();
    events_.listener({.kind = Event::Kind::Hide, .window = name});
}

} // namespace plotvue
