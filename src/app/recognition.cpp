#include "app/recognition.h"

#include "capture/failure.h"

#include <array>
#include <bitset>

namespace plotvue {

namespace {

struct Marker {
    TextView text;
    TextView identifier;
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

using Found = std::bitset<recognitionOrder.size()>;

constexpr char16_t beyondFirstLetters = u'Z' + 1;

constexpr auto firstLetters = [] {
    std::array<bool, beyondFirstLetters> letters{};
    for (const Marker& marker : recognitionOrder)
        letters[marker.text.front()] = true;
    return letters;
}();

Found markersIn(TextView screen)
{
    Found found;
    for (std::size_t at = 0; at < screen.size() && !found[0]; ++at) {
        if (screen[at] >= beyondFirstLetters || !firstLetters[screen[at]])
            continue;
        const TextView rest = screen.substr(at);
        for (std::size_t i = 0; i < recognitionOrder.size(); ++i)
            if (!found[i] && rest.starts_with(recognitionOrder[i].text))
                found.set(i);
    }
    return found;
}

bool holdsZero(TextView screen)
{
    return toInt16(static_cast<double>(find(screen, u"0")), u"The copied text") > 0;
}

} // namespace

Recognised recognise(TextView screen)
{
    const Found found = markersIn(screen);
    for (std::size_t i = 0; i < recognitionOrder.size(); ++i) {
        const Marker& marker = recognitionOrder[i];
        if (found[i] && (marker.kind != Marker::Kind::AsksForZero || holdsZero(screen)))
            return {marker.identifier, marker.kind == Marker::Kind::Ranked};
    }
    return {};
}

} // namespace plotvue
