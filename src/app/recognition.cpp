#include "app/recognition.h"

#include "capture/failure.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace plotvue {

namespace {

struct Marker {
    TextSpan text;
    TextSpan identifier;
    enum class Kind {
        Plain,
        Ranked,     // the capture goes to the scratch file
        AsksForZero // counts only where the screen holds a "0" somewhere
    } kind = Kind::Plain;
};

// The order carries the tie-breaks: a text with two markers is taken as the earlier one, and every
// "QXM12P2" screen holds "QXM12P" too. The ranked analyses are known by words of their titles.
constexpr std::array recognitionOrder{
    Marker{u"QXM31H", u"QXM31H"},
    Marker{u"QXM21D", u"QXM21D"},
    Marker{u"QXMACTIVE", u"QXMACTIVE"},
    Marker{u"TO MONTH PROFIT AN", u"M2Mpft", Marker::Kind::Ranked},
    Marker{u"RANKED PROFIT AN", u"ProfRank", Marker::Kind::Ranked},
    Marker{u"RANKED PAST", u"PastDue", Marker::Kind::Ranked},
    Marker{u"VENDOR INVENTORY", u"VendInv", Marker::Kind::Ranked},
    Marker{u"FINANCIAL RATIO", u"Ratio", Marker::Kind::Ranked},
    Marker{u"QXM12E1", u"QXM12E1"},
    Marker{u"PFMEXP1", u"PFMEXP1"},
    Marker{u"QXM21SXC", u"QXM21SXC"},
    Marker{u"QXM21CXS", u"QXM21CXS"},
    Marker{u"PFMGLARCH1", u"PFMGLARCH1"},
    Marker{u"QXM12P2", u"QXM12P2", Marker::Kind::AsksForZero},
    Marker{u"QXM12P", u"QXM12P", Marker::Kind::AsksForZero},
    Marker{u"QXM855DH", u"QXM855DH", Marker::Kind::AsksForZero},
    Marker{u"QXM855TH", u"QXM855TH", Marker::Kind::AsksForZero},
    Marker{u"QXM32C", u"QXM32C"},
    Marker{u"QXMSJHIST", u"QXMSJHIST"},
    Marker{u"CRD812H", u"CRD812H"},
    Marker{u"PCS05H1B", u"PCS05H1B"},
    Marker{u"QXMLCHIST", u"QXMLCHIST"},
};

// A set of markers: a bit each, the first one's the lowest.
using Markers = std::uint32_t;
static_assert(recognitionOrder.size() <= std::numeric_limits<Markers>::digits);

// As long as every marker is at least.
constexpr std::size_t commonLength = 6;
static_assert(std::ranges::all_of(recognitionOrder,
                                  [](const Marker& marker) { return marker.text.size() >= commonLength; }));

constexpr std::size_t characters = 128;

// The markers with a character at `position`, by what is left of it when it is divided by `characters`.
template <std::size_t position>
constexpr auto markersWith = [] {
    std::array<Markers, characters> result{};
    for (std::size_t i = 0; i < recognitionOrder.size(); ++i)
        result[recognitionOrder[i].text[position] % characters] |= Markers{1} << i;
    return result;
}();

// Two characters that stand apart rule out nearly every place of any text, whatever language it is in.
Markers candidates(char16_t first, char16_t last)
{
    return markersWith<0>[first % characters] & markersWith<commonLength - 1>[last % characters];
}

Markers markersIn(TextSpan screen)
{
    Markers found = 0;
    for (std::size_t at = 0; at + commonLength <= screen.size() && !(found & 1); ++at) {
        const Markers possible = candidates(screen[at], screen[at + commonLength - 1]);
        if (possible == 0)
            continue;
        const TextSpan rest = screen.substr(at);
        for (std::size_t i = 0; i < recognitionOrder.size(); ++i)
            if ((possible >> i & 1) && rest.starts_with(recognitionOrder[i].text))
                found |= Markers{1} << i;
    }
    return found;
}

bool holdsZero(TextSpan screen)
{
    return toInt16(static_cast<double>(find(screen, u"0")), u"The copied text") > 0;
}

} // namespace

Recognised recognise(TextSpan screen)
{
    const Markers found = markersIn(screen);
    for (std::size_t i = 0; i < recognitionOrder.size(); ++i) {
        const Marker& marker = recognitionOrder[i];
        if ((found >> i & 1) && (marker.kind != Marker::Kind::AsksForZero || holdsZero(screen)))
            return {marker.identifier, marker.kind == Marker::Kind::Ranked};
    }
    return {};
}

} // namespace plotvue
