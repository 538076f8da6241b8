#include "platform/form.h"

#include <stdexcept>

namespace plotvue {

void Form::Show()
{
    if (!loaded() || (loadsAnew() && !visible())) {
        hiddenWhileLoading_ = false;
        load();
        if (hiddenWhileLoading_)
            return;
    }
    const bool wasVisible = visible();
    view().show(); // a visible window comes to the front
    if (!wasVisible)
        platform_.listener({.kind = Event::Kind::Show, .window = name()});
}

void Form::Hide()
{
    hiddenWhileLoading_ = true;
    if (!visible())
        return;
    view_->hide();
    platform_.listener({.kind = Event::Kind::Hide, .window = name()});
}

void Form::Unload()
{
    Hide();
    if (!loaded())
        return;
    view_.reset();
    platform_.listener({.kind = Event::Kind::Unload, .window = name()});
}

View& Form::view() const
{
    if (!view_)
        throw std::out_of_range("a window is used before it is loaded");
    return *view_;
}

void Form::load()
{
    Handlers guarded = handlers();
    for (auto& [control, handler] : guarded)
        handler = [this, inner = std::move(handler)](int index) { platform_.run([&] { inner(index); }); };
    view_ = platform_.build(declare(), guarded, [this] { platform_.run([this] { wayOut(); }); });
    platform_.listener({.kind = Event::Kind::Load, .window = name()});
    Form_Load();
}

void Form::leaveFor(Form& home)
{
    Hide();
    home.Show();
}

void Form::printWindow()
{
    try {
        const int copies = toInt16(platform_.choosePrinter(view()), u"The number of copies");
        for (int copy = 1; copy <= copies; ++copy)
            platform_.print(view(), name());
    } catch (const Failure&) {
    }
}

} // namespace plotvue
