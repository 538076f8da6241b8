#include "app/recognition.h"

#include "capture/failure.h"

#include <algorithm>

namespace plotvue {

namespace {

// Kept: positions of 16 bits (docs/kept.md).
bool holdsZero(TextSpan text)
{
    return toInt16(static_cast<double>(find(text, u"0")), u"The copied text") > 0;
}

} // namespace

const Screen* recognise(TextSpan text)
{
    const auto at = std::ranges::find_if(screens, [text](const Screen& screen) {
        return holds(text, screen.marker) && (!screen.needsZero || holdsZero(text));
    });
    return at == screens.end() ? nullptr : &*at;
}

} // namespace plotvue
