// A fast search for many markers at once.
#pragma once

#include "capture/text.h"

#include <array>
#include <cstdint>
#include <span>

namespace plotvue {

// A bit for each marker, the lowest one for the first.
using MarkerSet = std::uint32_t;

class MarkerSearch {
public:
    static constexpr std::size_t maxMarkers = 32;
    static constexpr std::size_t minLength = 6; // of a marker

    // The markers must outlive the search. More or shorter markers do not compile.
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

    // The markers that the text holds. Goes once through the text and ends early where it finds the first
    // marker; the later markers may then be missing from the set.
    MarkerSet in(TextSpan text) const;

private:
    static constexpr std::size_t characters = 128;

    // The markers that may begin where these characters are. Two characters with four between them rule out
    // nearly every place of any text, whatever language it is in.
    MarkerSet candidates(char16_t first, char16_t last) const
    {
        return withFirst_[first % characters] & withLast_[last % characters];
    }

    std::span<const TextSpan> markers_;
    // The markers with a character as their first one and as the last one of `minLength`, by the remainder of
    // its code after division by `characters`.
    std::array<MarkerSet, characters> withFirst_{}, withLast_{};
};

} // namespace plotvue
