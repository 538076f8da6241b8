// Ranked profit: the pairs of customer and product group by their current profit. All is as in the
// month-to-month screen but for the line of the profit.
//
//     RANKED PROFIT ANALYSIS, OCTOBER 1999
//     FOR SALES REP 014 R. HALVORSEN, NORTH TERRITORY
//     Mlabel OCT99SEP99AUG99JUL99JUN99...
//     Mprofit   36812.00    34331.00
//     RANK:  1     10386 MILLBROOK TRANSIT              LUBRICANTS
//     P:     2560.00       623.00       280.00     (or a "GAIN:" line)
//     V     1969    1823    1869    1673    1763    1582...
//     S     8919    8314    8584    7698    7910    7069...
//     P     2560    1804    2151    1657    1970    1720...

#include "ranked/profitanalysis.h"

namespace plotvue {

using namespace profit;

namespace {

using To = LineField::To;

constexpr Position previousColumn = 21; // Kept: where the previous profit begins (docs/kept.md).

// The last of the entry's lines 2 to 5 that holds one of the two markers. If none does, line 2: the list may
// have a row for a rank that the screen lacks.
TextSpan componentLine(const EntryLines& record)
{
    TextSpan found = record[2];
    for (std::size_t field = 3; field < record.size(); ++field)
        if (holds(record[field], u"GAIN:") || holds(record[field], u"P:"))
            found = record[field];
    return found;
}

void drawEntry(Controls& controls, const EntryLines& record, int type)
{
    draw(controls, record, type, componentLine(record));
}

} // namespace

const RankedScreen frmProfRank = list(
    {
        .window = "frmProfRank",
        .title = u"RANKED PROFIT AN",
        // Kept: the later of two lines, any line with P and a colon (docs/kept.md).
        .rules = {{.marker = u"GAIN:",
                   .afterRank = true,
                   .fields = {{To::EntryNumber, volumePart, 19, 9}, {To::EntryNumber, marginPart, 32, 9}}},
                  {.marker = u"P:",
                   .afterRank = true,
                   .fields = {{To::EntryNumber, figure, 6, 9},
                              {To::EntryNumber, volumePart, 19, 9},
                              {To::EntryNumber, marginPart, 32, 9}},
                   .then = count},
                  {.marker = u"RANKED PROF", .fields = {{To::ScreenText, header, 1}}}},
        .grids = {grid(
            gains,
            {.name = "MSFlexGrid1",
             .spokenName = u"Profits",
             .format = u"Rank |Profit (current)|Customer|Customer Name                                      "
                       u"|Product Group  "})},
    },
    previousColumn);

const DrillDownDesign frmProfRankA = drillDown("frmProfRankA", frmProfRank, drawEntry);

} // namespace plotvue
