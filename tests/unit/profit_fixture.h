// What the tests of the ranked frame and of the two profit analyses share.
#pragma once

#include "ranked/analyses.h"
#include "ranked/profitanalysis.h"
#include "support/capturebuilder.h"
#include "window_fixture.h"

namespace plotvue::test {

inline constexpr Name m2m = "frmM2Mpft", m2mA = "frmM2MpftA";
inline constexpr Name profRank = "frmProfRank", profRankA = "frmProfRankA";
inline constexpr Name gainsGrid = "MSFlexGrid1", lossesGrid = "MSFlexGrid2";

inline constexpr TextSpan monthLabels = u"OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98";
inline constexpr int labelLine = 3, totalsLine = 4, firstEntryLine = 5, linesAnEntry = 5;

inline Text digits(int number)
{
    return fromUtf8(std::to_string(number));
}

inline Text rightAligned(TextSpan text, std::size_t width)
{
    return Text(width - std::min(width, text.size()), u' ') + Text(text);
}

// A profit screen with a page of headings and a block of five lines an entry. Entry r is customer 10000 + r,
// "CUSTOMER r", group "GROUP r", and sells 10 * r + k in month k, 1000 more by volume, 2000 more by profit.
class ProfitScreen : public CaptureBuilder {
public:
    ProfitScreen(TextSpan title, TextSpan figureMark) : CaptureBuilder(4), mark_(figureMark)
    {
        put(1, 1, title);
        put(2, 1, u"FOR SALES REP 014");
        put(labelLine, 1, u"Mlabel " + Text(monthLabels));
        put(totalsLine, 1, u"Mprofit   9250.00    8000.00");
    }

    ProfitScreen& add(int rank, TextSpan figure, TextSpan volumePart = u"", TextSpan marginPart = u"")
    {
        const std::size_t line = lineOf(++entries_);
        put(line, 1, u"RANK:" + rightAligned(digits(rank), 3) + u"     " + digits(10000 + rank));
        put(line, 20, u"CUSTOMER " + digits(rank));
        put(line, 51, u"GROUP " + digits(rank));
        put(line, 60, u" ");
        put(line + 1, 1, mark_);
        put(line + 1, 6, rightAligned(figure, 9));
        put(line + 1, 19, rightAligned(volumePart, 9));
        put(line + 1, 32, rightAligned(marginPart, 9));
        for (int k = 1; k <= 13; ++k) {
            const auto column = static_cast<std::size_t>(8 * k - 5);
            put(line + 2, column, rightAligned(digits(10 * rank + k + 1000), 8));
            put(line + 3, column, rightAligned(digits(10 * rank + k), 8));
            put(line + 4, column, rightAligned(digits(10 * rank + k + 2000), 8));
        }
        put(line + 2, 1, u"V");
        put(line + 3, 1, u"S");
        put(line + 4, 1, u"P");
        return *this;
    }

    // Of the entry that was added as `number`, counted from 1.
    static std::size_t lineOf(int number)
    {
        return static_cast<std::size_t>(firstEntryLine + linesAnEntry * (number - 1));
    }

private:
    Text mark_;
    int entries_ = 0;
};

struct MonthToMonthScreen : ProfitScreen {
    MonthToMonthScreen() : ProfitScreen(u"MONTH TO MONTH PROFIT ANALYSIS", u"GAIN:") {}
};

struct RankedProfitScreen : ProfitScreen {
    RankedProfitScreen() : ProfitScreen(u"RANKED PROFIT ANALYSIS", u"P:") {}
};

// A column of a grid from the top, headings apart.
inline Texts cellsOf(const Grid& grid, std::size_t number)
{
    Texts cells;
    for (const std::vector<Text>& row : grid.cells)
        cells.push_back(row.at(number));
    return cells;
}

// The customers in column 2: who is listed.
inline Texts customers(Session& session, Name window, Name grid = gainsGrid)
{
    return cellsOf(session.grid(window, grid), 2);
}

// What the drill-down window shows: whose figures.
inline Text shown(Session& session, Name drillDown)
{
    return session.chart(drillDown).titles.at(2);
}

} // namespace plotvue::test
