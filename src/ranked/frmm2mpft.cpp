// Month-to-month profit: the customer/product pairs whose profit changed most, gains and losses apart.
//
//     MONTH TO MONTH PROFIT ANALYSIS, OCTOBER AND SEPTEMBER 1999
//     FOR SALES REP 014 R. HALVORSEN, NORTH TERRITORY
//     Mlabel OCT99SEP99AUG99JUL99JUN99...
//     Mprofit   36812.00    34331.00
//     RANK:  1     10386 MILLBROOK TRANSIT              LUBRICANTS
//     GAIN:   756.00       144.00       612.00
//     V     1969    1823    1869    1673    1763    1582...
//     S     8919    8314    8584    7698    7910    7069...
//     P     2560    1804    2151    1657    1970    1720...
//
// The last three lines are volume, sales and profit, 13 months each, the newest first.

#include "ranked/monthcolumns.h"
#include "ranked/profitanalysis.h"

namespace plotvue {

using namespace profit;

const RankedAnalysis frmM2Mpft{
    .window = "frmM2Mpft",
    .caption = u"PlotVue!",
    .heading = heading(),
    .title = u"TO MONTH PROFIT AN",
    .markers = {rankMarker(),
                {.text = u"GAIN:",
                 .takes = {{Taken::To::EntryNumber, figure, 6, 9},
                           {Taken::To::EntryNumber, volumePart, 19, 9},
                           {Taken::To::EntryNumber, marginPart, 32, 9}},
                 .then = count},
                {.text = u"MONTH TO MONTH", .takes = {{Taken::To::PageText, header, 1}}},
                salesLineMarker(),
                labelMarker(),
                totalsMarker(20)},
    // A gain of exactly 0 counts as a loss, yet takes a row among the gains, where the last one then falls
    // off.
    .grids = {grid({.name = "MSFlexGrid1",
                    .spokenName = u"Gains",
                    .format = u"Rank |Profit Gain|Customer|Customer Name                                 "
                              u"|Product Group  "},
                   gains, RankedGrid::Holds::NotNegative,
                   PictureBox{.name = "Picture1", .spokenName = u"Gains", .shows = PictureBox::Shows::Gain}),
              grid(
                  {.name = "MSFlexGrid2",
                   .spokenName = u"Losses",
                   .format = u"Rank |Profit Loss|Customer|Customer Name                                 "
                             u"|Product Group  "},
                  losses, RankedGrid::Holds::NotPositive,
                  PictureBox{.name = "Picture2", .spokenName = u"Losses", .shows = PictureBox::Shows::Loss})},
    .summary = summary(),
    .key = key(),
    .linesAnEntry = 5,
};

const DrillDownDesign frmM2MpftA{
    .window = "frmM2MpftA",
    .caption = u"PlotVue!",
    .analysis = frmM2Mpft,
    .width = 1100,
    .charts = charts(),
    .types = monthTypeOptions(),
    .draw = [](Controls& controls, const Record& record,
               int type) { draw(controls, record, type, record[2]); },
};

} // namespace plotvue
