// Vendor inventory screens as the tests put them together.
#pragma once

#include "unit/analysis_fixture.h"

namespace plotvue::test {

inline constexpr TextSpan vendorTitle = u"VENDOR INVENTORY ANALYSIS";
inline constexpr TextSpan vendorTotal = u"Total EOM 1,234,567";

// Vendor and category of 30 characters each.
inline Text vendorLine(TextSpan rank, TextSpan vendor, TextSpan category)
{
    return CaptureBuilder(1)
        .put(1, 1, u"RANK:" + Text(3 - rank.size(), u' ') + Text(rank))
        .put(1, 17, vendor)
        .put(1, 54, Text(category) + Text(30 - category.size(), u' '))
        .text(u"");
}

// Thirteen figures of eight columns from column 3 on.
inline Text months(TextSpan mark, const Lines& figures)
{
    Text line = Text(mark) + Text(2 - mark.size(), u' ');
    for (const TextSpan figure : figures)
        line += Text(8 - figure.size(), u' ') + Text(figure);
    return line;
}

inline Text padded30(TextSpan text)
{
    return Text(text) + Text(30 - text.size(), u' ');
}

// Two pairs of vendor and category. The first earns a quarter of its sales in most months.
inline Text twoPairs()
{
    return hostScreen({
        vendorTitle,
        vendorTotal,
        thirteenMonths,
        vendorLine(u"1", u"CASCADE", u"MOTOR OIL"),
        u"F:123456.7   100.5   24.9    60702    8434    9218    3467   15967",
        months(u"V",
               {u"10", u"20", u"30", u"40", u"50", u"60", u"70", u"80", u"90", u"100", u"0", u"8", u"1"}),
        months(u"S", {u"100", u"200", u"300", u"400", u"0", u"-600", u"700", u"800", u"900", u"1000", u"1100",
                      u"16", u"40"}),
        months(u"P", {u"25", u"-50", u"75", u"100", u"125", u"150", u"175", u"200", u"225", u"250", u"275",
                      u"1", u"30"}),
        vendorLine(u"2", u"TIDEWATER", u"FILTERS"),
        u"F:   99.00     0.0    1.5        1       2       3       4       5",
        months(u"V", {u"1", u"2"}),
        months(u"S", {u"3", u"4"}),
        months(u"P", {u"5", u"6"}),
    });
}

inline std::vector<Texts> vendorRows(Session& session)
{
    return session.grid("frmVendInv").cells;
}

} // namespace plotvue::test
