#include "support/session.h"

#include "capture/utf8.h"
#include "support/eventname.h"
#include "support/windows.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace plotvue::test {

namespace fs = std::filesystem;

namespace {

std::string sentence(const Event& event)
{
    std::string text(nameOf(event.kind));
    if (!event.window.empty())
        text += ' ' + std::string(event.window);
    if (event.kind == Event::Kind::Message)
        text += ' ' + toUtf8(event.title) + ": " + toUtf8(event.text);
    else if (!event.text.empty())
        text += ' ' + toUtf8(event.text);
    return text;
}

} // namespace

Events opening(Name window)
{
    const std::string name(window);
    return {"load startup", "show startup", "hide startup", "load " + name, "show " + name};
}

Session::Session() : app(platform)
{
    before_ = fs::current_path().string();
    static std::random_device numbers; // random, because several test programs may run at once
    do
        directory_ = (fs::temp_directory_path() / ("plotvue-test-" + std::to_string(numbers()))).string();
    while (!fs::create_directory(directory_));
    fs::current_path(directory_);
    platform.listener = [this](const Event& event) { events_.push_back(sentence(event)); };
}

Session::~Session()
{
    platform.listener = [](const Event&) {}; // the windows go after the list of events
    fs::current_path(before_);
    std::error_code ignored;
    fs::remove_all(directory_, ignored);
}

Events Session::events()
{
    return std::exchange(events_, {});
}

void Session::start(TextSpan clipboard)
{
    copy(clipboard);
    start();
}

Controls& Session::controls(Name window)
{
    Window* form = test::windowNamed(app, window);
    if (!form)
        throw std::runtime_error("no window " + std::string(window));
    return form->controls();
}

void Session::press(Name window, Name button)
{
    controls(window).press(button);
}

void Session::choose(Name window, Name group, int index)
{
    controls(window).choose(group, index);
}

void Session::clickRow(Name window, Name grid, int row)
{
    controls(window).clickRow(grid, row);
}

void Session::close(Name window)
{
    controls(window).close();
}

bool Session::loaded(Name window)
{
    return test::windowNamed(app, window)->loaded();
}

bool Session::visible(Name window)
{
    return test::windowNamed(app, window)->visible();
}

Text Session::notice(Name window)
{
    return *controls(window).notice;
}

Text Session::caption(Name window)
{
    return Text(controls(window).declaration.caption);
}

Chart Session::chart(Name window, Name control)
{
    return *controls(window).chart(control);
}

OptionGroup Session::options(Name window, Name group)
{
    return *controls(window).options(group);
}

Grid Session::grid(Name window, Name control)
{
    return *controls(window).grid(control);
}

Text Session::text(Name window, Name control)
{
    std::optional<Text> caption;
    forEachControl(controls(window).declaration.content, [&](const auto& declared) {
        if constexpr (std::is_same_v<decltype(declared), const Button&>)
            if (declared.name == control)
                caption = declared.caption;
    });
    return caption ? *caption : *controls(window).text(control);
}

Texts Session::controlNames(Name window)
{
    std::set<Text> names;
    forEachControl(controls(window).declaration.content, [&](const auto& declared) {
        if constexpr (requires { declared.group; })
            names.insert(fromUtf8(declared.group));
        else if constexpr (requires { declared.name; } &&
                           !std::is_same_v<decltype(declared), const PictureBox&>)
            names.insert(fromUtf8(declared.name));
    });
    return {names.begin(), names.end()};
}

bool Session::hasControl(Name window, Name control)
{
    const Texts names = controlNames(window);
    return std::ranges::find(names, fromUtf8(control)) != names.end();
}

Texts Session::frames(Name window)
{
    Texts result;
    forEachControl(controls(window).declaration.content, [&](const auto& declared) {
        if constexpr (std::is_same_v<decltype(declared), const OptionFrame&>)
            result.push_back(fromUtf8(declared.name) + u": " + Text(declared.caption));
    });
    return result;
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
