#include "desktop/clipboard.h"
#include "fuzz.h"

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Text text = fuzz::textOf(data, size);
    Text mended = mendLineEnds(text);
    fuzz::always(mendLineEnds(mended) == mended);

    std::size_t bare = 0, empty = 0; // lines that end in a bare line feed
    for (std::size_t i = 0; i < text.size(); ++i) {
        bare += text[i] == u'\n' && (i == 0 || text[i - 1] != carriageReturn);
        empty += text[i] == u'\n' && (i == 0 || text[i - 1] == u'\n');
    }
    if (bare > 0 && !text.ends_with(u'\n')) {
        fuzz::always(mended.ends_with(u"\r\n"));
        mended.resize(mended.size() - 2);
    }
    // Apart from that, mendLineEnds may add only blanks and carriage returns, and only before a line feed.
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
    fuzz::always(blanks == empty);
    return 0;
}
