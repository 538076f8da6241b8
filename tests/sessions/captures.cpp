#include "sessions/captures.h"

#include "sessions/process.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>

namespace plotvue::sessions {

namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

constexpr std::string_view lineEnd = "\r\n";

Lines split(const std::string& text)
{
    Lines lines;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find(lineEnd, start)) != std::string::npos;
         start = end + lineEnd.size())
        lines.push_back(text.substr(start, end - start));
    lines.push_back(text.substr(start));
    return lines;
}

std::string join(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text.append(&line == &lines.front() ? "" : lineEnd).append(line);
    return text;
}

Lines cut(Random& random, const Lines& lines)
{
    const std::string text = join(lines);
    return split(text.substr(0, random.below(text.size() + 1)));
}

Lines fewLines(Random& random, const Lines& lines)
{
    return {lines.begin(), lines.begin() + std::ptrdiff_t(std::min(random.between(1, 24), lines.size()))};
}

Lines shuffled(Random& random, const Lines& lines)
{
    Lines others = lines;
    for (std::size_t left = others.size(); left > 1; --left)
        std::swap(others[left - 1], others[random.below(left)]);
    return others;
}

Lines withoutSome(Random& random, const Lines& lines)
{
    Lines others = lines;
    std::erase_if(others, [&](const std::string&) { return random.inPercent(10); });
    return others;
}

Lines doubled(Random& random, const Lines& lines)
{
    Lines others(lines.begin(), lines.begin() + std::ptrdiff_t(random.below(lines.size())));
    const Lines rest(lines.begin() + std::ptrdiff_t(others.size()), lines.end());
    for (int i = 0; i < 2; ++i)
        others.insert(others.end(), rest.begin(), rest.end());
    return others;
}

Lines blankLines(Random& random, const Lines& lines)
{
    Lines others;
    for (const std::string& line : lines) {
        others.push_back(line);
        if (random.inPercent(20))
            others.emplace_back();
    }
    return others;
}

Lines randomBytes(Random& random, const Lines& lines)
{
    std::string text = join(lines);
    for (std::size_t left = random.between(1, 19); left > 0 && !text.empty(); --left)
        text[random.below(text.size())] = static_cast<char>(random.below(256));
    return split(text);
}

// Replaces fields. Some replacements keep the right edge of the column, others shift the rest of the line.
Lines wrongFields(Random& random, const Lines& lines)
{
    static const Lines odd{
        "1E308", "-1E308", "1e-320", "99999", "-32769", "101",     "0",        "-5",           ".",
        "-",     "",       "XXX",    "\"",    "\",\"",  "€1,5",    "\xff\xfe", "\xed\xa0\x80", "\0"s,
        "\t",    ";",      "GAIN:",  "3A:",   "-----",  "RANK:  7"};
    constexpr const char* blanks = " \t\r\n\v\f";
    Lines others = lines;
    for (std::size_t left = random.between(1, 7); left > 0; --left) {
        std::string& line = others[random.below(others.size())];
        std::vector<std::pair<std::size_t, std::size_t>> fields; // where each begins and ends
        for (std::size_t end = 0, begin;
             (begin = line.find_first_not_of(blanks, end)) != std::string::npos;) {
            end = std::min(line.find_first_of(blanks, begin), line.size());
            fields.emplace_back(begin, end);
        }
        if (fields.empty())
            continue;
        const auto [begin, end] = random.from(fields);
        std::string other = random.from(odd);
        if (random.inPercent(50) && other.size() < end - begin)
            other.insert(0, end - begin - other.size(), ' ');
        line.replace(begin, end - begin, other);
    }
    return others;
}

Lines shortLines(Random& random, const Lines& lines)
{
    Lines others = lines;
    for (std::string& line : others)
        if (random.inPercent(15))
            line.resize(random.below(line.size() + 1));
    return others;
}

Lines anotherScreenAfter(Random& random, const Lines& lines)
{
    Lines others = lines;
    const Lines more = split(random.from(wholeCaptures()).bytes);
    others.insert(others.end(), more.begin(), more.end());
    return others;
}

Lines farDown(Random& random, const Lines& lines)
{
    Lines others = lines;
    others[0].insert(0, random.from(std::vector<std::size_t>{200, 32760, 40000}), ' ');
    return others;
}

// Replaces bare line feeds with CR LF. The desktop platform would do so itself, the platform in memory would
// not, and the windows on both must show the same.
std::string withLineEndsMended(const std::string& text)
{
    std::string mended;
    for (const char c : text) {
        if (c == '\n' && !mended.ends_with('\r'))
            mended += '\r';
        mended += c;
    }
    return mended;
}

} // namespace

const std::vector<Capture>& wholeCaptures()
{
    static const std::vector<Capture> captures = [] {
        std::vector<Capture> found;
        for (const auto& entry : std::filesystem::directory_iterator(PLOTVUE_SAMPLES)) {
            if (entry.path().extension() != ".txt")
                continue;
            std::ostringstream bytes;
            bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            found.push_back({entry.path().stem().string(), bytes.str()});
        }
        std::sort(found.begin(), found.end(),
                  [](const auto& one, const auto& other) { return one.name < other.name; });
        return found;
    }();
    return captures;
}

std::string damaged(Random& random, const std::string& capture)
{
    // Captures with wrong fields are not refused early, so they occur twice as often.
    static const std::vector<Lines (*)(Random&, const Lines&)> damages{
        cut,         fewLines,    shuffled,   withoutSome,        doubled, blankLines, randomBytes,
        wrongFields, wrongFields, shortLines, anotherScreenAfter, farDown};
    Lines lines = split(capture);
    for (std::size_t left = random.from(std::vector<std::size_t>{1, 1, 1, 2, 3}); left > 0; --left) {
        lines = random.from(damages)(random, lines);
        if (lines.empty())
            lines.emplace_back();
    }
    return withLineEndsMended(asClipboardHolds(join(lines)));
}

} // namespace plotvue::sessions
