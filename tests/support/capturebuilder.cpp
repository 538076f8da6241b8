#include "support/capturebuilder.h"

#include "capture/utf8.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace plotvue::test {

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

} // namespace plotvue::test
