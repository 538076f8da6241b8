#include "capture/utf8.h"

namespace plotvue {

namespace {

bool isHigh(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLow(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// The code point at the front of `bytes`, and its length in bytes: 0 when they are not UTF-8.
struct Decoded {
    char32_t point = 0;
    std::size_t length = 0;
};

Decoded decode(std::string_view bytes)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80)
        return {first, 1};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length)
        return {};
    char32_t point = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return {};
        point = point << 6 | (byte(i) & 0x3Fu);
    }
    const bool tooLong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    return tooLong || point > 0x10FFFF ? Decoded{} : Decoded{point, length};
}

} // namespace

std::string toUtf8(TextSpan text)
{
    std::string bytes;
    bytes.reserve(text.size());
    const auto put = [&](char32_t value) { bytes += static_cast<char>(value); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (isHigh(text[i]) && i + 1 < text.size() && isLow(text[i + 1]))
            point = 0x10000 + ((point - 0xD800) << 10) + (text[++i] - 0xDC00u);
        if (point < 0x80) {
            put(point);
        } else if (point < 0x800) {
            put(0xC0 | point >> 6);
            put(0x80 | (point & 0x3F));
        } else if (point < 0x10000) {
            put(0xE0 | point >> 12);
            put(0x80 | (point >> 6 & 0x3F));
            put(0x80 | (point & 0x3F));
        } else {
            put(0xF0 | point >> 18);
            put(0x80 | (point >> 12 & 0x3F));
            put(0x80 | (point >> 6 & 0x3F));
            put(0x80 | (point & 0x3F));
        }
    }
    return bytes;
}

Text fromUtf8(std::string_view bytes)
{
    Text text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const Decoded decoded = decode(bytes);
        if (decoded.length == 0) {
            text += u'\uFFFD';
        } else if (decoded.point < 0x10000) {
            text += static_cast<char16_t>(decoded.point);
        } else {
            text += static_cast<char16_t>(0xD800 + ((decoded.point - 0x10000) >> 10));
            text += static_cast<char16_t>(0xDC00 + ((decoded.point - 0x10000) & 0x3FF));
        }
        bytes.remove_prefix(decoded.length == 0 ? 1 : decoded.length);
    }
    return text;
}

} // namespace plotvue
