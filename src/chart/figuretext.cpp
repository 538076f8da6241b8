#include "chart/figuretext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace plotvue {

namespace {

constexpr double plainBelow = 1e15;

void appendWithCommas(Text& text, std::string_view digits)
{
    const std::size_t whole = std::min(digits.find_first_not_of("0123456789"), digits.size());
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && i < whole && (whole - i) % 3 == 0)
            text += u',';
        text += static_cast<char16_t>(digits[i]);
    }
}

} // namespace

Text figureText(double value, int decimals)
{
    const double size = std::abs(value);
    const bool plain = size < plainBelow;
    std::array<char, 64> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), size,
                                   plain ? std::chars_format::fixed : std::chars_format::scientific,
                                   plain ? std::clamp(decimals, 0, maxDecimals) : 2)
                         .ptr;
    const std::string_view digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    Text text;
    if (value < 0 && digits.find_first_of("123456789") != digits.npos)
        text += u'\u2212';
    appendWithCommas(text, digits);
    return text;
}

int decimalsNeeded(double value, int max)
{
    int decimals = 0;
    for (double scaled = std::abs(value); decimals < max; ++decimals, scaled *= 10)
        if (std::abs(scaled - std::round(scaled)) <= 1e-7 * std::max(1.0, scaled))
            break;
    return decimals;
}

} // namespace plotvue
