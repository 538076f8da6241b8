#include "capture/text.h"

#include "capture/failure.h"

#include <algorithm>

namespace plotvue {

Position find(TextView text, TextView wanted)
{
    const std::size_t at = text.find(wanted);
    return at == TextView::npos ? 0 : static_cast<Position>(at) + 1;
}

bool holds(TextView text, TextView wanted)
{
    return find(text, wanted) > 0;
}

TextView mid(TextView text, Position start, Position length)
{
    if (start < 1)
        throw Failure{u"The screen is cut off: a text would begin before its first character."};
    if (length < 0)
        throw Failure{u"The screen is cut off: a line is too short for the text in it."};
    const auto from = std::min(static_cast<std::size_t>(start) - 1, text.size());
    return text.substr(from, static_cast<std::size_t>(length));
}

TextView withoutLast(TextView text)
{
    return text.empty() ? text : text.substr(0, text.size() - 1);
}

} // namespace plotvue
