#include "capture/number.h"

#include "capture/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace plotvue {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// The field's characters without those that are skipped, as far as they can belong to a number.
std::string numberCharacters(TextView field, bool dropCommas)
{
    std::string kept;
    for (const char16_t c : field) {
        if (c == u' ' || c == u'\t' || c == u'\n' || (dropCommas && c == u','))
            continue;
        if (!((c >= u'0' && c <= u'9') || TextView(u"+-.Ee").find(c) != TextView::npos))
            break;
        kept += static_cast<char>(c);
    }
    return kept;
}

std::size_t endOfDigits(const std::string& text, std::size_t from)
{
    while (from < text.size() && isDigit(text[from]))
        ++from;
    return from;
}

// A number out of range is too small when its first significant digit stands far behind the point.
bool tooSmall(const std::string& number)
{
    const std::size_t e = number.find_first_of("Ee");
    const std::string mantissa = number.substr(0, e);
    const auto point = static_cast<std::ptrdiff_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::ptrdiff_t>(mantissa.find_first_of("123456789"));
    if (e == std::string::npos)
        return first > point;
    std::ptrdiff_t exponent = 0;
    const bool negative = number[e + 1] == '-';
    const char* digits = number.data() + e + 1 + (isDigit(number[e + 1]) ? 0 : 1);
    if (std::from_chars(digits, number.data() + number.size(), exponent).ec != std::errc{})
        return negative;
    return point - first + (negative ? -exponent : exponent) < 0;
}

double readNumber(TextView field, bool dropCommas)
{
    const std::string text = numberCharacters(field, dropCommas);
    const std::size_t start = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    const std::size_t whole = endOfDigits(text, start);
    const bool point = whole < text.size() && text[whole] == '.';
    std::size_t end = point ? endOfDigits(text, whole + 1) : whole;
    if (end - start == (point ? 1u : 0u))
        return 0;
    if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
        const std::size_t sign = end + 1 < text.size() && !isDigit(text[end + 1]) ? 1 : 0;
        const bool signOrDigit = sign == 0 || text[end + 1] == '+' || text[end + 1] == '-';
        const std::size_t exponent = endOfDigits(text, end + 1 + sign);
        if (signOrDigit && exponent > end + 1 + sign)
            end = exponent;
    }
    std::string number = text.substr(start, end - start);
    if (const std::size_t plus = number.find('+'); plus != std::string::npos)
        number.erase(plus, 1);
    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        if (!tooSmall(number))
            throw Failure{u"A figure on the screen is too large to be worked with."};
        value = 0;
    }
    return value == 0 || text[0] != '-' ? value : -value;
}

} // namespace

double leadingNumber(TextView field)
{
    return readNumber(field, false);
}

double leadingNumberWithoutCommas(TextView field)
{
    return readNumber(field, true);
}

Text plainNumber(double value)
{
    // 15 significant digits as d.dddde+xx, then written out without the exponent.
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific, 14)
            .ptr;
    std::string text(buffer.data(), end);
    const bool negative = text[0] == '-';
    const std::size_t e = text.find('e');
    int exponent = 0;
    const char* digits = text.data() + e + (text[e + 1] == '+' ? 2 : 1);
    std::from_chars(digits, text.data() + text.size(), exponent);

    std::string figures = text.substr(negative ? 1 : 0, e - (negative ? 1 : 0));
    std::erase(figures, '.');
    figures.erase(figures.find_last_not_of('0') + 1);
    if (figures.empty())
        return u"0";
    if (exponent < 0)
        figures.insert(0, static_cast<std::size_t>(-exponent), '0');
    const auto whole = static_cast<std::size_t>(std::max(exponent, 0)) + 1;
    if (figures.size() < whole)
        figures.resize(whole, '0');
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
