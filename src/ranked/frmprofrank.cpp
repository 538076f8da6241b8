// Ranked profit: the customer/product pairs by their current profit. Built like the month-to-month analysis.
//
//     RANKED PROFIT ANALYSIS, OCTOBER 1999
//     FOR SALES REP 014 R. HALVORSEN, NORTH TERRITORY
//     Mlabel OCT99SEP99AUG99JUL99JUN99...
//     Mprofit   36812.00    34331.00
//     RANK:  1     10386 MILLBROOK TRANSIT              LUBRICANTS
//     P:     2560.00       623.00       280.00     (or "GAIN:", whose own figure is not read)
//     V     1969    1823    1869    1673    1763    1582...
//     S     8919    8314    8584    7698    7910    7069...
//     P     2560    1804    2151    1657    1970    1720...

#include "ranked/monthcolumns.h"
#include "ranked/profitanalysis.h"

namespace plotvue {

using namespace profit;

namespace {

// Of the record's lines after the first, the last that holds either mark; the second line where none does, as
// when the screen lacks the rank.
TextSpan componentLine(const Record& record)
{
    TextSpan found = record[2];
    for (std::size_t field = 3; field < record.size(); ++field)
        if (holds(record[field], u"GAIN:") || holds(record[field], u"P:"))
            found = record[field];
    return found;
}

} // namespace

const RankedAnalysis frmProfRank{
    .window = "frmProfRank",
    .caption = u"PlotVue",
    .heading = heading(),
    .title = u"RANKED PROFIT AN",
    // Whichever of the two component lines comes later overwrites the other; only "P:" has a profit to count.
    .markers = {rankMarker(),
                {.text = u"GAIN:",
                 .takes = {{Taken::To::EntryNumber, volumePart, 19, 9},
                           {Taken::To::EntryNumber, marginPart, 32, 9}}},
                {.text = u"P:",
                 .takes = {{Taken::To::EntryNumber, figure, 6, 9},
                           {Taken::To::EntryNumber, volumePart, 19, 9},
                           {Taken::To::EntryNumber, marginPart, 32, 9}},
                 .then = count},
                {.text = u"RANKED PROF", .takes = {{Taken::To::PageText, header, 1}}},
                salesLineMarker(),
                labelMarker(),
                totalsMarker(21)},
    .grids = {grid({.name = "MSFlexGrid1",
                    .spokenName = u"Profits",
                    .format =
                        u"Rank |Profit (current)|Customer|Customer Name                                      "
                        u"|Product Group  "},
                   gains, RankedGrid::Holds::NotNegative)},
    .summary = summary(),
    .key = key(),
    .linesAnEntry = 5,
};

const DrillDownDesign frmProfRankA{
    .window = "frmProfRankA",
    .caption = u"PlotVue",
    .analysis = frmProfRank,
    .width = 1100,
    .charts = charts(),
    .types = monthTypeOptions(),
    .draw = [](Controls& controls, const Record& record,
               int type) { draw(controls, record, type, componentLine(record)); },
};

} // namespace plotvue
