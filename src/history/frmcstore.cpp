// C-store history: one convenience store.
//
//   1   PCS05H1B 22JUL99  LANTERN HILL MARKET, 88 ORCHARD ROW  C-STORE MONTHS AND YTD
//   2          DEPARTMENT:GROCERY AND DELI
//   3   MON         QTY     SALES    PROFIT      MON         QTY     SALES    PROFIT
//   5   JUL99   84923.5 128060.18  36279.68
//   6   JUN99  114297.0 166583.21  49087.20      JUN98  106650.2 147155.78  40861.70
//
// Kept: a name from another line, a text that ends the process (docs/kept.md).

#include "history/salesfields.h"

namespace plotvue {

namespace {

TextSpan storeName(const ScreenLines& lines, const DataType&)
{
    return mid(lines[1], find(lines[2], u":") + 1, 35);
}

} // namespace

const MonthlyScreen frmCSTORE{
    .window = "frmCSTORE",
    .words = {{u"YTD"}, {u"PCS05H1B", RequiredWord::Otherwise::End}},
    .day = 9,
    .blocks = twoHalves(5),
    .types = salesTypes(hundredTimesQuotient, u"G/P %", u"Unit G/P"),
    .subject = {{.text = u"Store: "}, {.cut = storeName}},
    .subject2 = {{.line = 2, .after = u":", .from = 1, .lineEnd = false}},
    .periods = periodsShort(),
};

} // namespace plotvue
