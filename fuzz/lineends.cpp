#include "fuzz.h"
#include "platform/desktop/clipboard.h"

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text text = fuzz::textOf(data, size);
    const Text mended = withCarriageReturns(text);
    char16_t before = 0;
    std::size_t kept = 0;
    for (const char16_t character : mended) {
        fuzz::always(character != u'\n' || before == carriageReturn);
        before = character;
        if (kept < text.size() && character == text[kept])
            ++kept;
        else
            fuzz::always(character == carriageReturn);
    }
    fuzz::always(kept == text.size());
    fuzz::always(withCarriageReturns(mended) == mended);
    return 0;
}
