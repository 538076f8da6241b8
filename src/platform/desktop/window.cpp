#include "platform/desktop/window.h"

#include <QCloseEvent>

namespace plotvue {

Window::Window(const Handlers& handlers, std::function<void()> close)
    : handlers_(handlers),
      close_(std::move(close))
{}

void Window::run(Name control, int index)
{
    if (const auto at = handlers_.find(control); at != handlers_.end()) {
        const auto handler = at->second;
        handler(index);
    }
}

void Window::retire()
{
    handlers_.clear();
    close_ = nullptr;
    hide();
    deleteLater();
}

void Window::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (const auto close = close_)
        close();
}

} // namespace plotvue
