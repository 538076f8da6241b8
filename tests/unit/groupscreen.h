// Screens of salesmen and groups of products for tests.
#pragma once

#include "capture/number.h"
#include "support/chartwindow.h"
#include "window_fixture.h"

namespace plotvue::test {

inline constexpr Name sxc = "frmQXM21SXC", cxs = "frmQXM21CXS";

inline Text digits(std::size_t number)
{
    return plainNumber(static_cast<double>(number));
}

// A screen of at most four groups. A figure tells its place: salesman 2, group 3, second figure is 232.
inline CaptureBuilder groupScreen(TextSpan identifier, std::size_t groups, std::size_t salesmen = 2)
{
    const TextSpan names[] = {u"FUELS;", u"LUBES;", u"HEATING;", u"CARDLOCK;"};
    CaptureBuilder capture(3 + salesmen);
    capture.put(1, 1, identifier);
    Text heading = u"GROUPS:0" + digits(groups) + u" SCOUNT:       " + digits(salesmen);
    heading.resize(31, u' ');
    heading += u";";
    for (std::size_t group = 0; group < groups; ++group)
        heading += names[group];
    capture.put(2, 1, heading).put(3, 1, u"MONTH:OCT  1999 ALL PROFIT CENTERS");
    for (std::size_t salesman = 1; salesman <= salesmen; ++salesman) {
        Text line = (salesman < 10 ? u"020" : u"02") + digits(salesman) + u" ";
        for (std::size_t group = 1; group <= groups; ++group)
            for (std::size_t figure = 1; figure <= 3; ++figure)
                line += digits(100 * salesman + 10 * group + figure) + u";";
        capture.put(3 + salesman, 1, line);
    }
    return capture;
}

} // namespace plotvue::test
