#include "chart/filename.h"

#include "chart/drawable.h"

#include <algorithm>
#include <array>

namespace plotvue {

namespace {

// The max length of a file name, in characters. Each takes up to three bytes, so the name remains well below
// the usual limit of 255 bytes.
constexpr std::size_t longestName = 80;
constexpr TextSpan programName = u"PlotVue";

bool isHighSurrogate(char16_t c)
{
    return c >= 0xD800 && c < 0xDC00;
}

bool isLowSurrogate(char16_t c)
{
    return c >= 0xDC00 && c < 0xE000;
}

// The character to write in place of `c`: `c` itself, if a file name may hold it.
char16_t replaced(char16_t c)
{
    if (c == u'/' || c == u'\\')
        return u'-';
    return TextSpan(u":*?\"<>|").find(c) == TextSpan::npos ? c : u' ';
}

// Windows takes these names for devices: with any extension, in capital or small letters.
bool isDevice(TextSpan name)
{
    constexpr std::array<TextSpan, 6> devices{u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"};
    Text base(name.substr(0, name.find(u'.')));
    base.erase(base.find_last_not_of(u' ') + 1);
    for (char16_t& c : base)
        if (c >= u'a' && c <= u'z')
            c = static_cast<char16_t>(c - u'a' + u'A');
    if (base.size() == 4 && (base.starts_with(u"COM") || base.starts_with(u"LPT")))
        return TextSpan(u"0123456789\u00B9\u00B2\u00B3").find(base[3]) != TextSpan::npos;
    return std::ranges::find(devices, base) != devices.end();
}

} // namespace

Text fileName(TextSpan text)
{
    const Text line = drawable(text);
    Text name;
    for (std::size_t i = 0; i < line.size() && name.size() < longestName; ++i) {
        const char16_t c = replaced(line[i]);
        if (isHighSurrogate(c) && i + 1 < line.size() && isLowSurrogate(line[i + 1])) {
            if (name.size() + 2 <= longestName)
                name.append(line, i, 2);
            ++i;
            continue;
        }
        const bool unpaired = isHighSurrogate(c) || isLowSurrogate(c);
        const bool blankAgain = c == u' ' && name.ends_with(u' ');
        const bool firstDot = c == u'.' && name.empty(); // would hide the file on Unix
        if (!unpaired && !blankAgain && !firstDot && !(c == u' ' && name.empty()))
            name += c;
    }
    name.erase(name.find_last_not_of(u" .") + 1); // Windows would cut them off
    if (name.empty())
        return Text(programName);
    return isDevice(name) ? Text(programName) + u' ' + name : name;
}

} // namespace plotvue
