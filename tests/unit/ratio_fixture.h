// Financial ratio screens as the tests put them together.
#pragma once

#include "unit/analysis_fixture.h"

namespace plotvue::test {

inline constexpr TextSpan ratioTitle = u"FINANCIAL RATIO ANALYSIS";

// A "1:" or "2:" line: the code, then figures of 13 columns, one blank apart, from column 9 on.
inline Text ratioLine(TextSpan mark, TextSpan code, const Lines& figures)
{
    Text line = Text(mark) + Text(code);
    line.resize(8, u' ');
    for (const TextSpan figure : figures)
        line += Text(13 - figure.size(), u' ') + Text(figure) + u' ';
    return line;
}

// A "3:" line: a figure at column 3, the value at 31, the benchmark at 45.
inline Text benchmarkLine(TextSpan figure, TextSpan value, TextSpan benchmark)
{
    return CaptureBuilder(1)
        .put(1, 1, u"3:" + Text(13 - figure.size(), u' ') + Text(figure))
        .put(1, 31, Text(13 - value.size(), u' ') + Text(value))
        .put(1, 45, Text(13 - benchmark.size(), u' ') + Text(benchmark))
        .text(u"");
}

// The six lines of a ratio of which only its code matters.
inline Text ratioBlock(TextSpan code)
{
    return hostScreen({Text(u"1:") + Text(code), Text(u"2:") + Text(code), u"3:", u"4: D", u"5: F", u"6: N"});
}

// Two ratios: one known by its code, one with a name and a note of its own.
inline Text twoRatios()
{
    return hostScreen({
        ratioTitle,
        u"COMP:NORTHWAY FUEL",
        thirteenMonths,
        ratioLine(u"1:", u"CUR ", {u"1.5", u"2", u"3", u"4", u"5", u"6", u"7"}),
        ratioLine(u"2:", u"CUR ", {u"8", u"-9", u"10", u"11", u"12", u"13.25"}),
        benchmarkLine(u"2.00", u"1.50", u"2.00"),
        u"4: CASS 4,182,300  CLIB 2,298,000",
        u"5: CASS / CLIB",
        u"6: STD",
        ratioLine(u"1:", u"DLVG", {u"6"}),
        ratioLine(u"2:", u"DLVG", {}),
        benchmarkLine(u"7", u"6 cents", u"7 cents") + u"  3A:Delivery Cents per Gallon|IN CENTS",
        u"4: DELIVERY 171,300",
        u"5: DELIVERY / GALLONS",
        u"6: Delivery expense by the gallons delivered.",
    });
}

inline std::vector<Texts> ratioRows(Session& session)
{
    return session.grid("frmRatio").cells;
}

} // namespace plotvue::test
