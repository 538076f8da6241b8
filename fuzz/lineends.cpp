#include "fuzz.h"
#include "platform/desktop/clipboard.h"

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text text = fuzz::textOf(data, size);
    const Text mended = mendLineEnds(text);
    // mendLineEnds may only add blanks and carriage returns, and only before a line feed.
    char16_t before = u'\n';
    std::size_t kept = 0, blanks = 0;
    for (std::size_t i = 0; i < mended.size(); ++i) {
        const char16_t character = mended[i];
        fuzz::always(character != u'\n' || before == carriageReturn);
        if (kept < text.size() && character == text[kept])
            ++kept;
        else if (character == u' ')
            fuzz::always(before == u'\n' && mended.substr(i, 3) == u" \r\n" && ++blanks);
        else
            fuzz::always(character == carriageReturn && mended.substr(i, 2) == u"\r\n");
        before = character;
    }
    fuzz::always(kept == text.size());
    std::size_t empty = text.starts_with(u'\n');
    for (std::size_t i = 1; i < text.size(); ++i)
        empty += text.compare(i - 1, 2, u"\n\n") == 0;
    fuzz::always(blanks == empty);
    fuzz::always(mendLineEnds(mended) == mended);
    return 0;
}
