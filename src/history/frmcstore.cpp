// C-store history: one convenience store.
//
//   1   PCS05H1B 22JUL99  LANTERN HILL MARKET, 88 ORCHARD ROW  C-STORE MONTHS AND YTD
//   2          DEPARTMENT:GROCERY AND DELI
//   3   MON         QTY     SALES    PROFIT      MON         QTY     SALES    PROFIT
//   5   JUL99   84923.5 128060.18  36279.68
//   6   JUN99  114297.0 166583.21  49087.20      JUN98  106650.2 147155.78  40861.70
//
// The store's name stands on line 1, behind the column of line 2's colon. Without the identifier the whole
// process ends.

#include "history/salesfields.h"
#include "history/screens.h"

namespace plotvue {

const MonthlyScreen frmCSTORE{
    .window = "frmCSTORE",
    .needed = {{u"YTD"}, {u"PCS05H1B", Needed::Missing::End}},
    .day = 9,
    .blocks = twoHalves(5),
    .types = salesTypes(hundredTimesQuotient, u"G/P %", u"Unit G/P"),
    .subject = {{.text = u"Store: "}, {.line = 1, .behind = u":", .from = 1, .length = 35, .behindLine = 2}},
    .subject2 = {{.line = 2, .behind = u":", .from = 1, .lineEnd = false}},
    .periods = periodsShort(),
};

} // namespace plotvue
