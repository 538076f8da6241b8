// Month-to-month profit: the customer/product pairs whose profit changed most, gains and losses apart.
//
//     MONTH TO MONTH PROFIT ANALYSIS
//     FOR SALES ...
//     Mlabel OCT99SEP99...                                   (thirteen labels from column 8)
//     Mprofit     9250.00    8000.00
//     RANK:  1     10442 NORTHSIDE TRUCKING             DIESEL
//     GAIN:  1250.00        820.00          430.00
//     V   12345 ...                                          (volume, sales and profit, 13 months each)

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
    .charts = charts(),
    .types = monthTypeOptions(),
    .draw = [](View& view, const Record& record, int type) { draw(view, record, type, record[2]); },
};

} // namespace plotvue
