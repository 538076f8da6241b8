// Reads the number at the beginning of a field, writes it as text, and checks that this text is read back
// with its 15 digits.
#include "capture/number.h"

#include "fuzz.h"

#include <array>
#include <cmath>
#include <cstdio>

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text field = fuzz::textOf(data, size);
    fuzz::mayFail([&] { fuzz::always(std::isfinite(leadingNumberWithoutCommas(field))); });
    fuzz::mayFail([&] {
        const double value = leadingNumber(field);
        fuzz::always(std::isfinite(value));
        const Text text = plainNumber(value);
        fuzz::always(text.find_first_not_of(u"-.0123456789") == Text::npos);
        fuzz::always(signedNumber(value).ends_with(text));
        // The text has only the first 15 digits of the value. The C library tells which number they are.
        std::array<char, 32> digits{};
        std::snprintf(digits.data(), digits.size(), "%.14e", value);
        fuzz::always(leadingNumber(text) == std::strtod(digits.data(), nullptr));
    });
    return 0;
}
