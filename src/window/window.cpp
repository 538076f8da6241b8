#include "window/window.h"

#include <stdexcept>
#include <utility>

namespace plotvue {

void Window::show()
{
    if (!loaded() || (loadsAnew() && !visible())) {
        hiddenWhileLoading_ = false;
        load();
        if (hiddenWhileLoading_)
            return;
    } else {
        shownAgain();
    }
    native().show();
    if (!std::exchange(visible_, true))
        platform_.tell({.kind = Event::Kind::Show, .window = name()});
}

void Window::hide()
{
    hiddenWhileLoading_ = true;
    if (!std::exchange(visible_, false))
        return;
    setNotice({});
    native().hide();
    platform_.tell({.kind = Event::Kind::Hide, .window = name()});
}

void Window::unload()
{
    hide();
    if (!loaded())
        return;
    native_.reset();
    controls_.reset();
    platform_.tell({.kind = Event::Kind::Unload, .window = name()});
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
    Handlers guarded = handlers();
    for (auto& [control, handler] : guarded)
        handler = [this, inner = std::move(handler)](int index) { platform_.run([&] { inner(index); }); };
    controls_ = std::make_shared<Controls>(declare(), std::move(guarded),
                                           [this] { platform_.run([this] { wayOut(); }); });
    native_ = platform_.build(controls_);
    platform_.tell({.kind = Event::Kind::Load, .window = name()});
    Form_Load();
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
            platform_.print(native(), name());
    } catch (const Failure&) {
    }
}

} // namespace plotvue
