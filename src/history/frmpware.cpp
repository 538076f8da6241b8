// Prodware history: one product pack in one warehouse.
//
//   1  QXM32C       11/18/99     THREE RIVERS FUEL & LUBRICANTS                08:05:41
//   2  PRODUCT: 0020450003            DESCRIPTION KEROSENE K-1 LOW SULFUR
//   3  PACK: 0055                            UNIT: BULK
//   4  WHSE:001 HARBOR ROAD
//   5  MONTH   GALLONS     SALES    PROFIT      MONTH   GALLONS     SALES    PROFIT
//   6  ----- --------- --------- ---------      ----- --------- --------- ---------
//   7  NOV99  97840.31 109601.92  10476.05
//   8  OCT99 118446.72 135027.93  12242.67      OCT98 108135.24 121262.58  14575.70
//
// The names of the product and of the unit of the pack begin in column 44.

#include "history/salesfields.h"

namespace plotvue {

const MonthlyScreen frmPware{
    .window = "frmPware",
    .words = {{u"QXM32C"}},
    .day = 16,
    .blocks = twoHalves(7),
    .types = salesTypes(hundredTimesQuotient, u"GP %", u"G/P Units"),
    .subject = {{.line = 2, .after = u":", .from = 2, .length = 10, .lineEnd = false},
                {.text = u"  "},
                {.line = 2, .from = 44, .lineEnd = false}},
    .subject2 = {{.text = u"Pack: "},
                 {.line = 3, .after = u":", .from = 2, .length = 4},
                 {.line = 3, .from = 44, .length = 5},
                 {.text = u"  WH: "},
                 {.line = 4, .after = u":", .from = 1, .length = 3}},
    .periods = periodsLong(),
    // Kept: captions that differ from window to window (docs/kept.md).
    .periodFrame = u"",
    .typeFrame = u"",
};

} // namespace plotvue
