// Rules that must hold for every capture and every action.
#include "capture/utf8.h"
#include "ranked/listfile.h"
#include "sessions/walk.h"
#include "support/owneronly.h"
#include "support/windows.h"

#include <algorithm>
#include <filesystem>
#include <regex>

namespace plotvue::sessions {

namespace {

bool holds(const std::vector<std::string>& items, const std::string& item)
{
    return std::find(items.begin(), items.end(), item) != items.end();
}

// The record of the chosen row; absent if the small files hold none.
std::optional<EntryLines> chosenRecord(const DrillDownDesign& design)
{
    try {
        const KeyValues chosen = readChosenRow(design.screen.key);
        return ListFile(design.screen).readUpTo(chosen, design.limits.draw);
    } catch (const Failure&) {
        return {};
    }
}

// The entries of the list file, without one that is cut short.
std::vector<EntryLines> listed(std::size_t lines)
{
    std::vector<EntryLines> entries;
    try {
        for (RecordReader reader(listFile);;) {
            EntryLines entry;
            while (entry.size() < lines)
                entry.push_back(reader.next());
            entries.push_back(std::move(entry));
        }
    } catch (const Failure&) {
        return entries;
    }
}

// Whether the drill-down window must say that the list ends, when the user presses Down or Back. It must if
// the chosen row is the last (Down) or the first (Back), and on Down also if the list file does not hold the
// row.
bool listEnds(const DrillDownDesign& design, bool down)
{
    const Key& key = design.screen.key;
    std::optional<KeyValues> chosen;
    try {
        chosen = readChosenRow(key);
        const auto lines = static_cast<std::size_t>(design.screen.linesAnEntry) + 1; // and the months
        const std::vector<EntryLines> entries = listed(lines);
        const auto found = std::find_if(entries.begin(), entries.end(), [&](const EntryLines& entry) {
            return entry[1].starts_with(key.recordStart) && hasKey(entry[1], key, *chosen);
        });
        // If the search reaches its limit, the last entry that it has read counts as found.
        const auto place = std::min(found - entries.begin(), std::ptrdiff_t{design.limits.step} - 1);
        const auto count = static_cast<std::ptrdiff_t>(entries.size());
        if (place < count)
            return down ? place == count - 1 : place == 0;
    } catch (const Failure&) {
        // A number in a file does not fit into a double.
    }
    return down && chosen; // in all other cases an error must be reported
}

std::string withoutNotice(const std::string& dump)
{
    return std::regex_replace(dump, std::regex(R"(,"notice":"[^"]*")"), "");
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

// Notes from now on what the chart of the window shows, each time it changes. For this it replaces the
// callback of the chart, which nothing else uses on the platform in memory.
void Walk::watch(const std::string& window)
{
    if (manner_.careful)
        return;
    const auto drillDown = designs_.find(window);
    if (drillDown == designs_.end() && !charts_.contains(window))
        return;
    Controls& controls = test::windowNamed(player_.application(), window)->controls();
    controls.chart("ChartFX1").changed = [this, window, &controls, drillDown] {
        Drawing& drawing = drawn_[window] = {held_, controls.chosenOptions(), {}};
        drawnNow_.push_back(window);
        if (drillDown != designs_.end())
            drawing.record = chosenRecord(*drillDown->second);
    };
}

void Walk::noticesMustBeTrue(const std::string& line)
{
    std::istringstream words(line);
    std::string verb, window;
    words >> verb >> window;
    for (const std::string& drawn : drawnNow_)
        mustBeEqual("the notice of a chart just drawn", noticeOf(drawn), "");
    if (window == "startup")
        for (const std::string& shown : shownNow_) {
            if (!charts_.contains(shown) || holds(loadedNow_, shown))
                continue;
            const auto last = drawn_.find(shown);
            const Controls& controls = test::windowNamed(player_.application(), shown)->controls();
            const bool current = last != drawn_.end() && last->second.copied == held_ &&
                                 last->second.options == controls.chosenOptions();
            if (noticeOf(shown).empty() != current)
                throw Wrong(shown + " says: " + noticeOf(shown));
        }
    if (verb == "row" && lists_.contains(window))
        for (const auto& [name, design] : designs_) {
            if (!isVisible(name) || holds(loadedNow_, name))
                continue;
            const bool current = name == window + "A" && drawn_.at(name).record == chosenRecord(*design);
            if (noticeOf(name).empty() != current)
                throw Wrong(name + " says: " + noticeOf(name));
        }
}

std::string Walk::noticeOf(const std::string& window)
{
    return toUtf8(*test::windowNamed(player_.application(), window)->controls().notice);
}

std::optional<bool> Walk::endOfListIsDue(const std::string& line) const
{
    std::istringstream words(line);
    std::string verb, window, control;
    words >> verb >> window >> control;
    const auto drillDown = designs_.find(window);
    if (verb != "click" || drillDown == designs_.end() || (control != "cmdBack" && control != "cmdNext"))
        return {};
    return listEnds(*drillDown->second, control == "cmdNext");
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
        mustBeEqual("shown again", withoutNotice(before), withoutNotice(dumped(window)));
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
        return; // the list has ended
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
    std::map<std::string, const Window*> windows; // sorted by name
    for (const Window* window : test::allWindows(player_.application()))
        windows.emplace(window->name(), window);
    for (const auto& [name, window] : windows) {
        if (window->loaded() != loaded_.contains(name) || window->visible() != visible_.contains(name))
            throw Wrong(name + " is not loaded or visible as the events told");
        if (manner_.talkative)
            play("dump " + name);
    }
}

} // namespace plotvue::sessions
