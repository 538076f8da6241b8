#include "app/recognition.h"

#include "app/markersearch.h"
#include "capture/failure.h"

namespace plotvue {

namespace {

constexpr auto markers = [] {
    std::array<TextSpan, screens.size()> result;
    for (std::size_t i = 0; i < screens.size(); ++i)
        result[i] = screens[i].marker;
    return result;
}();

bool holdsZero(TextSpan text)
{
    return toInt16(static_cast<double>(find(text, u"0")), u"The copied text") > 0;
}

} // namespace

const Screen* recognise(TextSpan text)
{
    const MarkerSet found = MarkerSearch<markers>::in(text);
    for (std::size_t i = 0; i < screens.size(); ++i)
        if ((found >> i & 1) && (!screens[i].needsZero || holdsZero(text)))
            return &screens[i];
    return nullptr;
}

} // namespace plotvue
