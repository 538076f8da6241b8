#include "support/capturebuilder.h"

#include "capture/utf8.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace plotvue::test {

CaptureBuilder::CaptureBuilder(TextSpan capture)
{
    constexpr TextSpan lineEnd = u"\r\n";
    while (!capture.empty()) {
        const std::size_t end = capture.find(lineEnd);
        lines_.emplace_back(capture.substr(0, end));
        capture.remove_prefix(end == TextSpan::npos ? capture.size() : end + lineEnd.size());
    }
}

CaptureBuilder& CaptureBuilder::put(std::size_t line, std::size_t column, TextSpan text)
{
    if (lines_.size() < line)
        lines_.resize(line);
    Text& target = lines_[line - 1];
    if (target.size() < column - 1 + text.size())
        target.resize(column - 1 + text.size(), u' ');
    target.replace(column - 1, text.size(), text);
    return *this;
}

CaptureBuilder& CaptureBuilder::replaceLine(std::size_t line, TextSpan text)
{
    lines_.at(line - 1) = text;
    return *this;
}

CaptureBuilder& CaptureBuilder::insertLine(std::size_t line, TextSpan text)
{
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(line) - 1, Text(text));
    return *this;
}

Text CaptureBuilder::characters(std::size_t line, std::size_t column, std::size_t width) const
{
    const Text& found = lines_.at(line - 1);
    return found.substr(std::min(column - 1, found.size()), width);
}

double CaptureBuilder::number(std::size_t line, std::size_t column, std::size_t width) const
{
    std::string digits = toUtf8(characters(line, column, width));
    std::erase(digits, ',');
    digits.erase(digits.find_last_not_of(' ') + 1);
    std::size_t end = 0;
    const double value = std::stod(digits, &end);
    if (end != digits.size())
        throw std::runtime_error("no number: '" + digits + "'");
    return value;
}

Text CaptureBuilder::text(TextSpan lineEnd) const
{
    Text result;
    for (const Text& line : lines_) {
        result += line.empty() ? Text(u".") : line;
        result += lineEnd;
    }
    return result;
}

Text readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return fromUtf8(bytes.str());
}

Text sample(std::string_view name)
{
    return readFile(std::string(PLOTVUE_SAMPLES "/") + std::string(name) + ".txt");
}

Text blotted(Text capture, TextSpan word)
{
    for (std::size_t at; (at = capture.find(word)) != Text::npos;)
        capture.replace(at, word.size(), word.size(), u'.');
    return capture;
}

Text withWordAt(Text capture, TextSpan word, std::size_t position)
{
    capture.resize(position - 1, u'.');
    return capture.append(word).append(u"\r\n");
}

} // namespace plotvue::test
