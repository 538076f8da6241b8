// Looks for many markers in a text at once.
#pragma once

#include "capture/text.h"

#include <array>
#include <cstdint>
#include <span>

namespace plotvue {

// A bit for each marker. The first marker has the lowest bit.
using MarkerSet = std::uint32_t;

class MarkerSearch {
public:
    static constexpr std::size_t maxMarkers = 32;
    static constexpr std::size_t minLength = 6; // of a marker

    // The markers must outlive the search. More than `maxMarkers`, or one shorter than `minLength`, do not
    // compile.
    consteval explicit MarkerSearch(std::span<const TextSpan> markers) : markers_(markers)
    {
        if (markers.size() > maxMarkers)
            throw "too many markers";
        for (std::size_t i = 0; i < markers.size(); ++i) {
            if (markers[i].size() < minLength)
                throw "a marker is too short";
            withFirst_[markers[i][0] % characters] |= MarkerSet{1} << i;
            withLast_[markers[i][minLength - 1] % characters] |= MarkerSet{1} << i;
        }
    }

    // The markers that the text holds. The search goes through the text once and ends as soon as it finds the
    // first marker; other markers may then be missing from the result.
    MarkerSet in(TextSpan text) const;

private:
    static constexpr std::size_t characters = 128;

    // The markers that can begin at a place, by the character there and the one that a marker of `minLength`
    // ends with. The two rule out nearly every place of a text, in any language.
    MarkerSet candidates(char16_t first, char16_t last) const
    {
        return withFirst_[first % characters] & withLast_[last % characters];
    }

    std::span<const TextSpan> markers_;
    // Which markers have a character as their first one, and which have it as number `minLength`, by its code
    // modulo `characters`.
    std::array<MarkerSet, characters> withFirst_{}, withLast_{};
};

} // namespace plotvue
