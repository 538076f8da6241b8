#include "platform/form.h"

#include <stdexcept>
#include <utility>

namespace plotvue {

void Form::show()
{
    if (!loaded() || (loadsAnew() && !visible())) {
        hiddenWhileLoading_ = false;
        load();
        if (hiddenWhileLoading_)
            return;
    } else {
        shownAgain();
    }
    window().show();
    if (!std::exchange(visible_, true))
        platform_.tell({.kind = Event::Kind::Show, .window = name()});
}

void Form::hide()
{
    hiddenWhileLoading_ = true;
    if (!std::exchange(visible_, false))
        return;
    setNotice({});
    window().hide();
    platform_.tell({.kind = Event::Kind::Hide, .window = name()});
}

void Form::unload()
{
    hide();
    if (!loaded())
        return;
    window_.reset();
    controls_.reset();
    platform_.tell({.kind = Event::Kind::Unload, .window = name()});
}

void Form::setNotice(TextSpan text)
{
    Shown<Text>& notice = controls().notice;
    if (!text.empty() || !notice->empty())
        notice.set(Text(text));
}

Controls& Form::controls() const
{
    if (!controls_)
        throw std::out_of_range("a window is used before it is loaded");
    return *controls_;
}

Window& Form::window() const
{
    controls();
    return *window_;
}

void Form::load()
{
    Handlers guarded = handlers();
    for (auto& [control, handler] : guarded)
        handler = [this, inner = std::move(handler)](int index) { platform_.run([&] { inner(index); }); };
    controls_ = std::make_shared<Controls>(declare(), std::move(guarded),
                                           [this] { platform_.run([this] { wayOut(); }); });
    window_ = platform_.build(controls_);
    platform_.tell({.kind = Event::Kind::Load, .window = name()});
    Form_Load();
}

void Form::leaveFor(Form& home)
{
    hide();
    home.show();
}

void Form::printWindow()
{
    try {
        const int copies = toInt16(platform_.choosePrinter(window()), u"The number of copies");
        for (int copy = 1; copy <= copies; ++copy)
            platform_.print(window(), name());
    } catch (const Failure&) {
    }
}

} // namespace plotvue
