// Looks for many markers in a text at once.
#pragma once

#include "capture/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace plotvue {

// A bit for each marker. The first marker has the lowest bit.
using MarkerSet = std::uint32_t;

// `markers` is a constexpr array of TextSpan, at most 32 of them. The search is compiled for them.
template <const auto& markers>
class MarkerSearch {
public:
    // The markers that the text holds. The search goes through the text once and ends as soon as it finds the
    // first marker; other markers may then be missing from the result.
    static MarkerSet in(TextSpan text)
    {
        MarkerSet found = 0;
        for (std::size_t at = 0; at + minLength <= text.size() && !(found & 1); ++at) {
            const MarkerSet possible = candidates(text[at], text[at + minLength - 1]);
            if (possible == 0)
                continue;
            const TextSpan rest = text.substr(at);
            for (std::size_t i = 0; i < markers.size(); ++i)
                if ((possible >> i & 1) && rest.starts_with(markers[i]))
                    found |= MarkerSet{1} << i;
        }
        return found;
    }

private:
    static constexpr std::size_t characters = 128;

    // The length of the shortest marker.
    static constexpr std::size_t minLength = std::ranges::min(markers, {}, &TextSpan::size).size();

    static_assert(markers.size() <= std::numeric_limits<MarkerSet>::digits && minLength > 0);

    // Which markers have a character at the position, by the code of the character modulo `characters`.
    static constexpr auto markersWith(std::size_t position)
    {
        std::array<MarkerSet, characters> result{};
        for (std::size_t i = 0; i < markers.size(); ++i)
            result[markers[i][position] % characters] |= MarkerSet{1} << i;
        return result;
    }

    // The markers that can begin at a place, by the character there and the one `minLength` - 1 after it. The
    // two rule out nearly every place of a text, in any language.
    static MarkerSet candidates(char16_t first, char16_t last)
    {
        static constexpr auto withFirst = markersWith(0), withLast = markersWith(minLength - 1);
        return withFirst[first % characters] & withLast[last % characters];
    }
};

} // namespace plotvue
