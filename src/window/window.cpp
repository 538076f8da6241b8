#include "window/window.h"

#include <stdexcept>
#include <utility>

namespace plotvue {

void Window::show()
{
    if (!loaded() || (loadsAnew() && !visible())) {
        hiddenSinceLoading_ = false;
        load();
        if (hiddenSinceLoading_)
            return;
    } else {
        shownAgain();
    }
    native().show();
    visible_ = true;
}

void Window::hide()
{
    hiddenSinceLoading_ = true;
    if (!std::exchange(visible_, false))
        return;
    setNotice({});
    native().hide();
}

void Window::unload()
{
    hide();
    if (!loaded())
        return;
    native_.reset();
    controls_.reset();
}

void Window::setNotice(TextSpan text)
{
    Property<Text>& notice = controls().notice;
    if (!text.empty() || !notice->empty())
        notice.set(Text(text));
}

Controls& Window::controls() const
{
    if (!controls_)
        throw std::out_of_range("a window is used before it is loaded");
    return *controls_;
}

NativeWindow& Window::native() const
{
    controls();
    return *native_;
}

void Window::load()
{
    // Only once: a handler may load its own window again, and must not be replaced while it runs.
    if (handlers_.empty())
        handlers_ = handlers();
    ControlsOwner& owner = *this;
    controls_ = std::make_shared<Controls>(declare(), owner);
    native_ = platform_.build(controls_);
    Form_Load();
}

void Window::operated(Name control, int index)
{
    if (const auto handler = handlers_.find(control); handler != handlers_.end())
        platform_.run([&] { handler->second(index); });
}

void Window::closed()
{
    platform_.run([this] { wayOut(); });
}

void Window::leaveFor(Window& home)
{
    hide();
    home.show();
}

void Window::printWindow()
{
    try {
        const int copies = toInt16(platform_.choosePrinter(native()), u"The number of copies");
        for (int copy = 1; copy <= copies; ++copy)
            platform_.print(native());
    } catch (const Failure&) {
    }
}

} // namespace plotvue
