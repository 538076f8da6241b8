#include "replay/player.h"

#include "capture/utf8.h"
#include "replay/json.h"
#include "support/windows.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <istream>
#include <ostream>
#include <sstream>
#include <utility>

namespace plotvue::replay {

namespace {

std::vector<std::string> wordsOf(const std::string& line)
{
    std::vector<std::string> words;
    std::istringstream stream(line);
    for (std::string word; std::getline(stream, word, ' ');)
        words.push_back(word);
    return words;
}

int wholeNumber(const std::string& word)
{
    int value = 0;
    const char* end = word.data() + word.size();
    if (const auto read = std::from_chars(word.data(), end, value); read.ec != std::errc{} || read.ptr != end)
        throw BadLine("'" + word + "' is no number");
    return value;
}

} // namespace

Player::Player(Stage& stage, std::ostream& out) : stage_(stage), app_(stage.platform()), out_(out)
{
    stage.events().listener = [this](const Event& event) { out_ << toJson(event) << '\n'; };
}

// The windows go now, and no longer because of the script.
Player::~Player()
{
    stage_.events().listener = [](const Event&) {};
}

void Player::play(std::istream& script)
{
    int number = 0;
    for (std::string line; !stage_.platform().over() && std::getline(script, line);) {
        ++number;
        if (line.empty() || line[0] == '#')
            continue;
        try {
            command(wordsOf(line));
        } catch (const BadLine& bad) {
            throw BadLine("line " + std::to_string(number) + ": " + bad.what());
        }
        if (!stage_.platform().over())
            stage_.settle();
    }
}

void Player::command(const std::vector<std::string>& words)
{
    const auto is = [&](std::string_view verb, std::size_t count) {
        return words[0] == verb && words.size() == count;
    };
    if (words[0] == "clipboard") {
        clipboard(words);
    } else if (words[0] == "printer") {
        printer(words);
    } else if (is("start", 1)) {
        if (std::exchange(started_, true))
            throw BadLine("the process has started already");
        app_.start();
    } else if (is("click", 3)) {
        control<SeenText>(words[1], words[2]);
        stage_.press(loadedWindow(words[1]), words[2]);
    } else if (is("choose", 4)) {
        const int index = wholeNumber(words[3]);
        const auto options = control<OptionGroup>(words[1], words[2]).options;
        if (std::ranges::find(options, index, &OptionGroup::Entry::index) == options.end())
            throw BadLine(words[2] + " has no option " + words[3]);
        stage_.choose(loadedWindow(words[1]), words[2], index);
    } else if (is("row", 4)) {
        const int row = wholeNumber(words[3]);
        if (row < 1 || row >= control<Grid>(words[1], words[2]).rows)
            throw BadLine(words[2] + " has no row " + words[3]);
        stage_.clickRow(loadedWindow(words[1]), words[2], row);
    } else if (is("close", 2)) {
        stage_.close(loadedWindow(words[1]));
    } else if (is("copy", 3)) {
        const Seen seen = control(words[1], words[2]);
        if (!std::holds_alternative<Chart>(seen) && !std::holds_alternative<Grid>(seen))
            throw BadLine(words[2] + " is neither a chart nor a grid");
        stage_.copy(loadedWindow(words[1]), words[2]);
    } else if (is("dump", 2)) {
        dump(words[1]);
    } else {
        throw BadLine("no command: " + words[0]);
    }
}

void Player::clipboard(const std::vector<std::string>& words)
{
    if (words.size() > 2)
        throw BadLine("clipboard takes one file");
    if (words.size() == 1)
        return stage_.setClipboard({});
    std::ifstream file(words[1], std::ios::binary);
    if (!file)
        throw BadLine("cannot read " + words[1]);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    stage_.setClipboard(fromUtf8(bytes.str()));
}

void Player::printer(const std::vector<std::string>& words)
{
    using Kind = PrinterAnswer::Kind;
    if (words.size() == 3 && words[1] == "accept")
        stage_.setPrinter({Kind::Accept, wholeNumber(words[2])});
    else if (words.size() == 2 && words[1] == "cancel")
        stage_.setPrinter({Kind::Cancel});
    else if (words.size() == 2 && words[1] == "fail")
        stage_.setPrinter({Kind::Fail});
    else
        throw BadLine("printer takes accept N, cancel or fail");
}

void Player::dump(Name window)
{
    const Window& shown = existingWindow(window);
    if (shown.loaded())
        out_ << toJson(window, shown.visible(), stage_.look(shown)) << '\n';
    else
        out_ << unloadedJson(window) << '\n';
}

Window& Player::existingWindow(Name window)
{
    Window* found = test::windowNamed(app_, window);
    if (!found)
        throw BadLine("no window " + std::string(window));
    return *found;
}

Window& Player::loadedWindow(Name window)
{
    Window& found = existingWindow(window);
    if (!found.loaded())
        throw BadLine(std::string(window) + " is not loaded");
    return found;
}

Seen Player::control(Name window, Name name)
{
    const SeenWindow seen = stage_.look(loadedWindow(window));
    const auto at = seen.controls.find(name);
    if (at == seen.controls.end())
        throw BadLine(std::string(window) + " has no control " + std::string(name));
    return at->second;
}

template <typename Value>
Value Player::control(Name window, Name name)
{
    const Seen seen = control(window, name);
    if (!std::holds_alternative<Value>(seen))
        throw BadLine(std::string(window) + " has no such control " + std::string(name));
    return std::get<Value>(seen);
}

} // namespace plotvue::replay
