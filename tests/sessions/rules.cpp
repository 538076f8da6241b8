// Rules that must hold for every capture and every action.
#include "capture/utf8.h"
#include "sessions/walk.h"
#include "support/owneronly.h"

#include <algorithm>
#include <filesystem>

namespace plotvue::sessions {

namespace {

bool holds(const std::vector<std::string>& items, const std::string& item)
{
    return std::find(items.begin(), items.end(), item) != items.end();
}

} // namespace

void mustBePlain(TextSpan sentence)
{
    const bool begins = !sentence.empty() && sentence.front() >= u'A' && sentence.front() <= u'Z';
    if (!begins || !sentence.ends_with(u'.') || sentence.starts_with(u"PlotVue made a mistake"))
        throw Wrong("the error report says: " + toUtf8(sentence));
}

void mustBeEqual(const std::string& what, const std::string& one, const std::string& other)
{
    constexpr std::size_t maxLength = 2000;
    if (one != other)
        throw Wrong(what + ":\n  " + one.substr(0, maxLength) + "\n  " + other.substr(0, maxLength));
}

void takeFiles(const std::string& directory)
{
    static const std::set<std::string> names{"pvuscrn.txt", "plotvue.txt", "plotvue1.txt"};
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        const std::string name = entry.path().filename().string();
        if (!names.contains(name))
            throw Wrong("in the working directory is " + name);
        if (!test::ownerOnly(entry.path().string()))
            throw Wrong(name + " is no plain file for its owner only");
        std::filesystem::remove(entry.path());
    }
}

std::string Walk::dumped(const std::string& window)
{
    const auto before = out_.tellp();
    play("dump " + window);
    return out_.str().substr(static_cast<std::size_t>(before));
}

void Walk::twiceRefreshedIsTheSame(const std::string& window)
{
    play("click " + window + " cmdRefresh");
    if (over() || !isVisible(window))
        return;
    const std::string once = dumped(window);
    play("click " + window + " cmdRefresh");
    if (!over())
        mustBeEqual("a second Refresh", once, dumped(window));
}

void Walk::shownAgainIsTheSame(const std::string& window)
{
    const std::string before = dumped(window);
    play("click " + window + " cmdExit");
    play("click startup Command1");
    if (!over() && holds(shownNow_, window))
        mustBeEqual("shown again", before, dumped(window));
}

void Walk::backThenDownIsTheSame(const std::string& window, const std::string& clickRow)
{
    const std::string chart = window + "A";
    play(clickRow);
    if (over() || !holds(loadedNow_, chart))
        return; // the chart window was open already and has not changed
    const std::string before = dumped(chart);
    play("click " + chart + " cmdBack");
    if (over() || !isVisible(chart))
        return; // the end of the list
    if (dumped(chart) == before)
        throw Wrong("Back does not change the record: " + before);
    play("click " + chart + " cmdNext");
    if (!over())
        mustBeEqual("Back, then Down", before, dumped(chart));
}

void Walk::finish()
{
    if (over())
        return;
    std::map<std::string, const Form*> windows; // sorted by name
    for (const Form* window : player_.application().windows())
        windows.emplace(window->name(), window);
    for (const auto& [name, window] : windows) {
        if (window->loaded() != loaded_.contains(name) || window->visible() != visible_.contains(name))
            throw Wrong(name + " is not loaded or visible as the events told");
        if (manner_.talkative)
            play("dump " + name);
    }
}

} // namespace plotvue::sessions
