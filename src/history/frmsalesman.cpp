// Salesman history: one sales representative in one product category.
//
//   1  QXM21D       10/11/99     THREE RIVERS FUEL & LUBRICANTS                14:32:08
//   2  SALES REP:  014
//   3  NAME:HALVARD OSTBY
//   4  CATEGORY:MOTOR OILS
//   5  MONTH   GALLONS     SALES    PROFIT      MONTH   GALLONS     SALES    PROFIT
//   6  ----- --------- --------- ---------      ----- --------- --------- ---------
//   7  OCT99   8403.74  36838.63   7873.25
//   8  SEP99  22473.64  97780.36  19857.15      SEP98  22207.05  97217.75  15444.03
//
// Kept: a window charted while hidden (docs/kept.md).

#include "history/salesfields.h"

namespace plotvue {

const MonthlyScreen frmSalesman{
    .window = "frmSalesman",
    .words = {{u"QXM21D", RequiredWord::Otherwise::GoOn}},
    .shortPositions = ShortPositions::OfWords,
    .day = 16,
    .blocks = twoHalves(7),
    .types = salesTypesLong(),
    .subject = {{.text = u"Sales Rep: "},
                {.line = 2, .after = u":", .from = 3, .length = 3},
                {.text = u"  "},
                {.line = 3, .after = u":", .from = 1, .lineEnd = false}},
    .subject2 = {{.text = u"Category: "}, {.line = 4, .after = u":", .from = 1, .lineEnd = false}},
    .periods = periodsLong(),
};

} // namespace plotvue
