// Past-due screens as the tests put them together.
#pragma once

#include "unit/analysis_fixture.h"

namespace plotvue::test {

inline constexpr TextSpan pastdueTitle = u"RANKED PAST DUE RECEIVABLES";
inline constexpr TextSpan pastdueMonths = u"Mlabel OCT99SEP99AUG99JUL99JUN99MAY99";
inline constexpr TextSpan fourBuckets = u"       CURRENT  1 - 30 31 - 60 OVER 60";

inline Text atRight(TextSpan text, std::size_t width)
{
    return Text(width - text.size(), u' ') + Text(text);
}

inline Text padded(TextSpan text, std::size_t width)
{
    return Text(text) + Text(width - text.size(), u' ');
}

inline Text rankLine(TextSpan rank, TextSpan number, TextSpan name, TextSpan city, TextSpan state,
                     TextSpan amount)
{
    return CaptureBuilder(1)
        .put(1, 1, u"RANK:")
        .put(1, 6, atRight(rank, 3))
        .put(1, 14, atRight(number, 5))
        .put(1, 20, name)
        .put(1, 51, city)
        .put(1, 67, state)
        .put(1, 70, atRight(amount, 8))
        .text(u"");
}

// Amounts of eight columns from column 7 on.
inline Text ageing(TextSpan month, const Lines& amounts)
{
    Text line = padded(month, 6);
    for (const TextSpan amount : amounts)
        line += atRight(amount, 8);
    return line;
}

inline Text northside()
{
    return rankLine(u"1", u"10442", u"NORTHSIDE TRUCKING", u"HARBOR CITY", u"OR", u"12345.00");
}

inline Text acme()
{
    return rankLine(u"2", u"77", u"ACME", u"ELK", u"WA", u"0.00");
}

// Two customers, four buckets each.
inline Text twoCustomers()
{
    return hostScreen({
        pastdueTitle,
        pastdueMonths,
        northside(),
        fourBuckets,
        ageing(u"OCT99", {u"1200", u"300", u"50", u"7.5"}),
        ageing(u"SEP99", {u"900", u"200"}),
        ageing(u"AUG99", {u"100", u"10", u"1", u"-3"}),
        ageing(u"JUL99", {u"110", u"11", u"2", u"0"}),
        ageing(u"JUN99", {u"120", u"12", u"3", u"0"}),
        ageing(u"MAY99", {u"130", u"13", u"4", u"5"}),
        acme(),
        fourBuckets,
        ageing(u"OCT99", {u"10", u"20", u"30", u"40"}),
        ageing(u"SEP99", {u"50", u"60", u"70", u"80"}),
        ageing(u"AUG99", {u"90", u"100", u"110", u"120"}),
        ageing(u"JUL99", {u"130", u"140", u"150", u"160"}),
        ageing(u"JUN99", {u"170", u"180", u"190", u"200"}),
        ageing(u"MAY99", {u"210", u"220", u"230", u"240"}),
    });
}

// The rows under the headings.
inline std::vector<Texts> pastdueRows(Session& session)
{
    return session.grid("frmPastdue").cells;
}

} // namespace plotvue::test
