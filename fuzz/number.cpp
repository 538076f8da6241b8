// Reads the number at the beginning of a field, and checks that a number written as text is read back
// unchanged.
#include "capture/number.h"

#include "fuzz.h"

#include <cmath>

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr double minWithAllDigits = 1e-290;
    const Text field = fuzz::textOf(data, size);
    fuzz::mayFail([&] { fuzz::always(std::isfinite(leadingNumberWithoutCommas(field))); });
    fuzz::mayFail([&] {
        const double value = leadingNumber(field);
        fuzz::always(std::isfinite(value));
        const Text text = plainNumber(value);
        fuzz::always(text.find_first_not_of(u"-.0123456789") == Text::npos);
        fuzz::always(signedNumber(value).ends_with(text));
        if (value == 0 || std::fabs(value) >= minWithAllDigits)
            fuzz::always(plainNumber(leadingNumber(text)) == text);
    });
    return 0;
}
