#include "capture/number.h"

#include "capture/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <string_view>

namespace plotvue {

namespace {

// The field without blanks, tabs and line feeds, up to the first character that no number has.
// Kept: numbers end early (docs/kept.md).
std::string numberCharacters(TextSpan field, bool dropCommas)
{
    std::string kept;
    for (const char16_t c : field) {
        if (c == u' ' || c == u'\t' || c == u'\n' || (dropCommas && c == u','))
            continue;
        if (!((c >= u'0' && c <= u'9') || TextSpan(u"+-.Ee").find(c) != TextSpan::npos))
            break;
        kept += static_cast<char>(c);
    }
    return kept;
}

// Whether a number that no double can hold is too small for one; otherwise it is too large. The point and the
// exponent say how far the first digit that is not 0 is from the ones.
bool tooSmall(std::string_view number)
{
    const std::size_t e = std::min(number.find_first_of("Ee"), number.size());
    const std::string_view mantissa = number.substr(0, e);
    const auto point = static_cast<std::ptrdiff_t>(std::min(mantissa.find('.'), e));
    const auto first = static_cast<std::ptrdiff_t>(mantissa.find_first_of("123456789"));
    int exponent = 0; // an int, so that the sum below cannot overflow
    if (e < number.size()) {
        const char* digits = number.data() + e + (number[e + 1] == '+' ? 2 : 1);
        if (std::from_chars(digits, number.data() + number.size(), exponent).ec != std::errc{})
            return *digits == '-';
    }
    return point - first + exponent < 0;
}

double readNumber(TextSpan field, bool dropCommas)
{
    const std::string text = numberCharacters(field, dropCommas);
    if (text.starts_with("+-"))
        return 0;
    const char* start = text.data() + (text.starts_with('+') ? 1 : 0); // from_chars knows no plus sign
    double value = 0;
    const auto [end, error] = std::from_chars(start, text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        if (!tooSmall({start, end}))
            throw Failure{u"A figure on the screen is too large to be worked with."};
        return 0;
    }
    return value == 0 ? 0 : value; // never minus zero
}

} // namespace

double leadingNumber(TextSpan field)
{
    return readNumber(field, false);
}

double leadingNumberWithoutCommas(TextSpan field)
{
    return readNumber(field, true);
}

Text plainNumber(double value)
{
    // 15 significant digits, first as d.dddde+xx, then without the exponent.
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific, 14)
            .ptr;
    std::string text(buffer.data(), end);
    const bool negative = text[0] == '-';
    const std::size_t e = text.find('e');
    const int exponent = std::stoi(text.substr(e + 1));

    std::string figures = text.substr(negative ? 1 : 0, e - (negative ? 1 : 0));
    std::erase(figures, '.');
    figures.erase(figures.find_last_not_of('0') + 1);
    if (figures.empty())
        return u"0";
    figures.insert(0, static_cast<std::size_t>(std::max(-exponent, 0)), '0');
    const auto whole = static_cast<std::size_t>(std::max(exponent, 0)) + 1;
    figures.resize(std::max(figures.size(), whole), '0');
    Text result = negative ? u"-" : u"";
    result.append(figures.begin(), figures.begin() + static_cast<std::ptrdiff_t>(whole));
    if (figures.size() > whole) {
        result += u'.';
        result.append(figures.begin() + static_cast<std::ptrdiff_t>(whole), figures.end());
    }
    return result;
}

Text signedNumber(double value)
{
    const Text text = plainNumber(value);
    return text.starts_with(u'-') ? text : u' ' + text;
}

} // namespace plotvue
