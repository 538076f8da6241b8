#include "chart/drawable.h"

#include <algorithm>

namespace plotvue {

namespace {

constexpr std::size_t longestLine = 500;
constexpr char16_t ellipsis = u'\u2026';

bool isControl(char16_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029;
}

bool isFirstOfPair(char16_t c)
{
    return c >= 0xD800 && c < 0xDC00;
}

} // namespace

Text drawable(TextSpan text)
{
    Text kept;
    for (const char16_t c : text) {
        if (kept.size() == longestLine)
            break;
        if (!isControl(c) && !(c == u' ' && kept.empty()))
            kept += c;
    }
    if (kept.size() == longestLine && isFirstOfPair(kept.back()))
        kept.pop_back();
    kept.erase(kept.find_last_not_of(u' ') + 1);
    return kept;
}

bool isBlank(TextSpan text)
{
    return std::all_of(text.begin(), text.end(), [](char16_t c) { return c == u' ' || isControl(c); });
}

Text elided(Text text, double room, const std::function<double(TextSpan)>& widthOf)
{
    if (widthOf(text) <= room)
        return text;
    std::size_t fits = 0, tooLong = text.size();
    auto cut = [&](std::size_t length) {
        Text part = text.substr(0, length);
        while (!part.empty() && (part.back() == u' ' || isFirstOfPair(part.back())))
            part.pop_back();
        return part + ellipsis;
    };
    if (widthOf(cut(0)) > room)
        return {};
    while (tooLong - fits > 1) {
        const std::size_t middle = (fits + tooLong) / 2;
        (widthOf(cut(middle)) <= room ? fits : tooLong) = middle;
    }
    return cut(fits);
}

} // namespace plotvue
