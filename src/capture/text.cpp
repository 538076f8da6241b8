#include "capture/text.h"

#include "capture/failure.h"

#include <algorithm>

namespace plotvue {

Position find(TextSpan text, TextSpan wanted)
{
    const std::size_t at = text.find(wanted);
    return at == TextSpan::npos ? 0 : static_cast<Position>(at) + 1;
}

bool holds(TextSpan text, TextSpan wanted)
{
    return find(text, wanted) > 0;
}

TextSpan mid(TextSpan text, Position start, Position length)
{
    if (start < 1)
        throw Failure{u"The screen is cut off: a text would begin before its first character."};
    if (length < 0)
        throw Failure{u"The screen is cut off: a line is too short for the text in it."};
    const auto from = std::min(static_cast<std::size_t>(start) - 1, text.size());
    return text.substr(from, static_cast<std::size_t>(length));
}

TextSpan withoutLast(TextSpan text)
{
    return text.empty() ? text : text.substr(0, text.size() - 1);
}

} // namespace plotvue
