#include "support/session.h"

#include "capture/utf8.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace plotvue::test {

namespace fs = std::filesystem;

namespace {

std::string sentence(const Event& event)
{
    const std::string window(event.window);
    switch (event.kind) {
    case Event::Kind::Load:
        return "load " + window;
    case Event::Kind::Show:
        return "show " + window;
    case Event::Kind::Hide:
        return "hide " + window;
    case Event::Kind::Unload:
        return "unload " + window;
    case Event::Kind::Message:
        return "message " + toUtf8(event.title) + ": " + toUtf8(event.text);
    case Event::Kind::Print:
        return "print " + window;
    case Event::Kind::Spin:
        return "spin";
    case Event::Kind::Error:
        return "error " + toUtf8(event.text);
    case Event::Kind::End:
        return "end";
    }
    return {};
}

} // namespace

Events opening(Name window)
{
    const std::string name(window);
    return {"load startup", "show startup", "hide startup", "load " + name, "show " + name};
}

std::unique_ptr<View> WatchedPlatform::build(const Declaration& declaration, const Handlers& handlers,
                                             std::function<void()> close)
{
    built[declaration.name] = declaration;
    return RecordingPlatform::build(declaration, handlers, std::move(close));
}

Text WatchedPlatform::clipboardText()
{
    ++clipboardReads;
    return RecordingPlatform::clipboardText();
}

Session::Session() : app(platform)
{
    before_ = fs::current_path().string();
    static std::random_device numbers; // many sessions, and several runs at once
    do
        directory_ = (fs::temp_directory_path() / ("plotvue-test-" + std::to_string(numbers()))).string();
    while (!fs::create_directory(directory_));
    fs::current_path(directory_);
    platform.listener = [this](const Event& event) { events_.push_back(sentence(event)); };
}

Session::~Session()
{
    fs::current_path(before_);
    std::error_code ignored;
    fs::remove_all(directory_, ignored);
}

std::vector<std::string> Session::events()
{
    return std::exchange(events_, {});
}

void Session::start(TextSpan clipboard)
{
    copy(clipboard);
    start();
}

View& Session::view(Name window)
{
    Form* form = app.window(window);
    if (!form)
        throw std::runtime_error("no window " + std::string(window));
    return form->view();
}

void Session::press(Name window, Name button)
{
    view(window).press(button);
}

void Session::choose(Name window, Name group, int index)
{
    view(window).choose(group, index);
}

void Session::clickRow(Name window, Name grid, int row)
{
    view(window).clickRow(grid, row);
}

void Session::close(Name window)
{
    view(window).close();
}

bool Session::loaded(Name window)
{
    return app.window(window)->loaded();
}

bool Session::visible(Name window)
{
    return app.window(window)->visible();
}

Text Session::caption(Name window)
{
    return view(window).state().caption;
}

Texts Session::controls(Name window)
{
    Texts names;
    for (const auto& [name, control] : view(window).state().controls)
        names.push_back(fromUtf8(name));
    return names;
}

bool Session::hasControl(Name window, Name control)
{
    return view(window).state().controls.contains(control);
}

Texts Session::frames(Name window)
{
    Texts result;
    forEachControl(platform.built.at(window).content, [&](const auto& control) {
        if constexpr (std::is_same_v<std::decay_t<decltype(control)>, OptionFrame>)
            result.push_back(fromUtf8(control.name) + u": " + Text(control.caption));
    });
    return result;
}

ChartContent Session::chart(Name window, Name control)
{
    return view(window).chart(control).content();
}

OptionsState Session::options(Name window, Name group)
{
    return std::get<OptionsState>(view(window).state().controls.find(group)->second);
}

GridState Session::grid(Name window, Name control)
{
    return std::get<GridState>(view(window).state().controls.find(control)->second);
}

Text Session::text(Name window, Name control)
{
    const ViewState state = view(window).state();
    const ControlState& found = state.controls.find(control)->second;
    if (const auto* button = std::get_if<ButtonState>(&found))
        return button->caption;
    if (const auto* label = std::get_if<LabelState>(&found))
        return label->text;
    return std::get<TextBoxState>(found).text;
}

bool Session::fileExists(const std::string& name) const
{
    return fs::exists(fs::path(directory_) / name);
}

std::string Session::file(const std::string& name) const
{
    std::ifstream file(fs::path(directory_) / name, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

} // namespace plotvue::test
