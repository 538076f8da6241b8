#include "app/markersearch.h"

namespace plotvue {

MarkerSet MarkerSearch::in(TextSpan text) const
{
    MarkerSet found = 0;
    for (std::size_t at = 0; at + minLength <= text.size() && !(found & 1); ++at) {
        const MarkerSet possible = candidates(text[at], text[at + minLength - 1]);
        if (possible == 0)
            continue;
        const TextSpan rest = text.substr(at);
        for (std::size_t i = 0; i < markers_.size(); ++i)
            if ((possible >> i & 1) && rest.starts_with(markers_[i]))
                found |= MarkerSet{1} << i;
    }
    return found;
}

} // namespace plotvue
