// What the tests of the two salesman/category windows share.
#pragma once

#include "support/capturebuilder.h"
#include "windowfixture.h"

#include <algorithm>

namespace plotvue::test {

inline constexpr Name sxc = "frmQXM21SXC", cxs = "frmQXM21CXS";

enum TypeOption { Sales, Profit, Volume };

inline Text wholeNumber(std::size_t number)
{
    Text digits;
    for (; number > 0 || digits.empty(); number /= 10)
        digits.insert(digits.begin(), static_cast<char16_t>(u'0' + number % 10));
    return digits;
}

// A salesman/category screen. Each figure tells its place: 232 is the second figure of group 3 of salesman 2.
inline CaptureBuilder groupScreen(TextSpan identifier, std::size_t groups, std::size_t salesmen = 2)
{
    CaptureBuilder capture(3 + salesmen);
    capture.put(1, 1, identifier);
    Text names;
    for (const TextSpan name : {u"FUELS;", u"LUBES;", u"HEATING;", u"CARDLOCK;", u"PARTS;", u"TIRES;"})
        if (groups-- > 0)
            names += name;
        else
            break;
    const std::size_t count = static_cast<std::size_t>(std::count(names.begin(), names.end(), u';'));
    capture.put(2, 1, u"GROUPS:0" + wholeNumber(count) + u" SCOUNT:       " + wholeNumber(salesmen));
    capture.put(2, 32, u";" + names);
    capture.put(3, 1, u"MONTH:OCT  1999 ALL PROFIT CENTERS");
    for (std::size_t s = 1; s <= salesmen; ++s) {
        Text figures;
        for (std::size_t group = 1; group <= count; ++group)
            for (std::size_t figure = 1; figure <= 3; ++figure)
                figures += wholeNumber(100 * s + 10 * group + figure) + u";";
        capture.put(3 + s, 1, (s < 10 ? u"020" : u"02") + wholeNumber(s) + u" " + figures);
    }
    return capture;
}

} // namespace plotvue::test
