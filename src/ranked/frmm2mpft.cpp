// Month-to-month profit: the pairs of customer and product group whose profit changed most, the gains in one
// grid and the losses in another.
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
// The last three lines are the volume, sales and profit of 13 months, the newest first.

#include "ranked/profitanalysis.h"

namespace plotvue {

using namespace profit;

namespace {

using To = LineField::To;

constexpr Position previousColumn = 20; // Kept: where the previous profit begins (docs/kept.md).

void drawEntry(Controls& controls, const EntryLines& record, int type)
{
    draw(controls, record, type, record[2]);
}

} // namespace

const RankedScreen frmM2Mpft = list(
    {
        .window = "frmM2Mpft",
        .caption = u"PlotVue!",
        .title = u"TO MONTH PROFIT AN",
        .rules = {{.marker = u"GAIN:",
                   .afterRank = true,
                   .fields = {{To::EntryNumber, figure, 6, 9},
                              {To::EntryNumber, volumePart, 19, 9},
                              {To::EntryNumber, marginPart, 32, 9}},
                   .then = count},
                  {.marker = u"MONTH TO MONTH", .fields = {{To::ScreenText, header, 1}}}},
        // Kept: a gain of 0, blanks in texts (docs/kept.md).
        .grids = {grid(gains,
                       {.name = "MSFlexGrid1",
                        .spokenName = u"Gains",
                        .format = u"Rank |Profit Gain|Customer|Customer Name                                 "
                                  u"|Product Group  "},
                       PictureBox{"Picture1", u"Gains", PictureBox::Symbol::Gain}),
                  grid(losses,
                       {.name = "MSFlexGrid2",
                        .spokenName = u"Losses",
                        .format = u"Rank |Profit Loss|Customer|Customer Name                                 "
                                  u"|Product Group  "},
                       PictureBox{"Picture2", u"Losses", PictureBox::Symbol::Loss})},
    },
    previousColumn);

const DrillDownDesign frmM2MpftA = drillDown("frmM2MpftA", frmM2Mpft, drawEntry);

} // namespace plotvue
