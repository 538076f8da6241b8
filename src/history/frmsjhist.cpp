// Sales journal history: one warehouse, profit centre and category.
//
//   1  QXMSJHIST       12/07/99     THREE RIVERS FUEL & LUBRICANTS             16:47:20
//   2  WH:001 HARBOR ROAD TERMINALS   PROFIT CTR:100 WHOLESALE
//   3  CATEGORY:DISTILLATES
//   4  MONTH   GALLONS     SALES    PROFIT      MONTH   GALLONS     SALES    PROFIT
//   5  ----- --------- --------- ---------      ----- --------- --------- ---------
//   6  DEC99  32268.86  29896.12   2427.12
//   7  NOV99 185021.51 176201.99  12050.08      NOV98 183893.03 171971.19  15053.99

#include "history/salesfields.h"

namespace plotvue {

const MonthlyScreen frmSJHIST{
    .window = "frmSJHIST",
    .words = {{u"QXMSJHIST"}},
    .day = 19,
    .blocks = twoHalves(6),
    .types = salesTypes(hundredTimesQuotient, u"G/P %", u"Unit G/P"),
    .subject = {{.text = u"WH: "},
                {.line = 2, .after = u":", .from = 1, .length = 25},
                {.text = u"  PftCtr: "},
                {.line = 2, .after = u"CTR:", .from = 4, .lineEnd = false}},
    .subject2 = {{.text = u"Category: "}, {.line = 3, .after = u":", .from = 1, .lineEnd = false}},
    .periods = periodsShort(),
};

} // namespace plotvue
