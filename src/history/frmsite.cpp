// Cardlock site history: one fuel at one unattended fuelling site.
//
//   1   1999/11/17 CRD812H              CARDLOCK SITE HISTORY                  PAGE 1
//   2   FUEL: UNLEADED  SITE: 0417 BRAMBLE HOLLOW
//   3   MON         QTY     SALES    PROFIT      MON         QTY     SALES    PROFIT
//   5   NOV99  62159.09  75185.33   6166.18
//   6   OCT99 118114.87 141100.53  12280.43      OCT98 110518.10 125481.06  12572.32
//
// The day is to the left of the identifier.
// Kept: a window charted while hidden, a text that ends the process (docs/kept.md).

#include "history/salesfields.h"

namespace plotvue {

const MonthlyScreen frmSite{
    .window = "frmSite",
    .words = {{u"QTY", RequiredWord::Otherwise::GoOn}, {u"CRD812H", RequiredWord::Otherwise::End}},
    .day = -3,
    .blocks = twoHalves(5),
    .types = salesTypes(hundredTimesQuotient, u"G/P %", u"Unit G/P"),
    .subject = {{.text = u"C/L Site: "}, {.line = 2, .after = u"SITE:", .from = 6, .lineEnd = false}},
    .subject2 = {{.text = u"Fuel: "}, {.line = 2, .after = u":", .from = 2, .length = 8}},
    .periods = periodsShort(),
};

} // namespace plotvue
