#include "replay/json.h"

#include "capture/utf8.h"
#include "support/eventname.h"

#include <array>
#include <charconv>
#include <cmath>

namespace plotvue::replay {

namespace {

std::string quote(std::string_view utf8)
{
    constexpr std::string_view hex = "0123456789abcdef";
    std::string text = "\"";
    for (const char c : utf8) {
        if (c == '"' || c == '\\') {
            text += '\\';
            text += c;
        } else if (c == '\r') {
            text += "\\r";
        } else if (c == '\n') {
            text += "\\n";
        } else if (c == '\t') {
            text += "\\t";
        } else if (static_cast<unsigned char>(c) < 0x20) {
            text += "\\u00";
            text += hex[static_cast<unsigned char>(c) >> 4];
            text += hex[c & 0xF];
        } else {
            text += c;
        }
    }
    return text + '"';
}

std::string quote(TextSpan text)
{
    return quote(toUtf8(text));
}

std::string number(double value)
{
    std::array<char, 400> buffer;
    const bool handy = value == 0 || (std::fabs(value) >= 1e-5 && std::fabs(value) < 1e15);
    const auto format = handy ? std::chars_format::fixed : std::chars_format::general;
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr};
}

std::string number(int value)
{
    return std::to_string(value);
}

template <typename Range, typename Write>
std::string list(const Range& range, Write write)
{
    std::string text = "[";
    for (const auto& item : range)
        text += (text.size() > 1 ? "," : "") + write(item);
    return text + "]";
}

template <typename Map, typename Write>
std::string object(const Map& map, Write write)
{
    std::string text = "{";
    for (const auto& [key, value] : map)
        text += (text.size() > 1 ? "," : "") + quote(std::to_string(key)) + ":" + write(value);
    return text + "}";
}

const auto writeText = [](const Text& text) { return quote(text); };
const auto writeNumber = [](auto value) { return number(value); };
const auto writeTexts = [](const std::vector<Text>& texts) { return list(texts, writeText); };
const auto writeNumbers = [](const std::vector<double>& values) { return list(values, writeNumber); };

std::string hexColour(const Colour& colour)
{
    constexpr std::string_view hex = "0123456789abcdef";
    std::string text = "#";
    for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) {
        text += hex[part >> 4];
        text += hex[part & 0xF];
    }
    return quote(text);
}

struct ControlWriter {
    std::string operator()(const SeenText& seen) const
    {
        switch (seen.of) {
        case SeenText::Of::Button:
            return R"("kind":"button","caption":)" + quote(seen.text);
        case SeenText::Of::Label:
            return R"("kind":"label","text":)" + quote(seen.text);
        case SeenText::Of::TextBox:
            return R"("kind":"text","text":)" + quote(seen.text);
        }
        return {};
    }
    std::string operator()(const SeenList& items) const
    {
        return R"("kind":"list","items":)" + writeTexts(items);
    }
    std::string operator()(const OptionGroup& group) const
    {
        const auto option = [](const OptionGroup::Entry& state) {
            return R"({"index":)" + number(state.index) + R"(,"caption":)" + quote(state.caption) +
                   R"(,"visible":)" + (state.visible ? "true" : "false") + "}";
        };
        return R"("kind":"options","chosen":)" + list(group.chosen, writeNumber) + R"(,"options":)" +
               list(group.options, option);
    }
    std::string operator()(const Grid& grid) const
    {
        return R"("kind":"grid","format":)" + quote(grid.format) + R"(,"columns":)" + number(grid.columns) +
               R"(,"rows":)" + number(grid.rows) + R"(,"cells":)" + list(grid.cells, writeTexts);
    }
    std::string operator()(const Chart& chart) const
    {
        std::string text = R"("kind":"chart","titles":)" + object(chart.titles, writeText);
        if (chart.decimals)
            text += R"(,"decimals":)" + number(*chart.decimals);
        text += R"(,"series":)" + list(chart.series, writeNumbers) + R"(,"labels":)" +
                writeTexts(chart.labels) + R"(,"hidden":)" + list(chart.hidden, writeNumber) +
                R"(,"legends":)" + object(chart.legends, writeText) + R"(,"colors":)" +
                object(chart.colours, hexColour);
        if (chart.axisMin)
            text += R"(,"min":)" + number(*chart.axisMin);
        if (chart.axisMax)
            text += R"(,"max":)" + number(*chart.axisMax);
        return text;
    }
};

} // namespace

std::string toJson(const Event& event)
{
    using Kind = Event::Kind;
    std::string text = R"({"event":)" + quote(test::nameOf(event.kind));
    if (!event.window.empty())
        text += R"(,"window":)" + quote(event.window);
    if (event.kind == Kind::Message)
        text += R"(,"title":)" + quote(event.title);
    if (event.kind == Kind::Message || event.kind == Kind::Copy || event.kind == Kind::Error)
        text += R"(,"text":)" + quote(event.text);
    return text + "}";
}

std::string toJson(Name window, bool visible, const SeenWindow& seen)
{
    std::string text = R"({"window":)" + quote(window) + R"(,"loaded":true,"visible":)" +
                       (visible ? "true" : "false") + R"(,"caption":)" + quote(seen.caption);
    if (!seen.notice.empty())
        text += R"(,"notice":)" + quote(seen.notice);
    text += R"(,"controls":{)";
    bool first = true;
    for (const auto& [name, control] : seen.controls) {
        text += (first ? "" : ",") + quote(name) + ":{" + std::visit(ControlWriter{}, control) + "}";
        first = false;
    }
    return text + "}}";
}

std::string unloadedJson(Name window)
{
    return R"({"window":)" + quote(window) + R"(,"loaded":false})";
}

} // namespace plotvue::replay
