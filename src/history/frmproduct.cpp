// Product history.
//
//   1  QXM31H          10/11/99
//   2  PRODUCT: 0010012345 DIESEL FUEL NO. 2
//      MON YR    VOLUME     SALES    PROFIT          MON YR    VOLUME     SALES    PROFIT
//      ----- --------- --------- ---------
//      OCT99     12345     11234      1234

#include "history/salesfields.h"
#include "history/screens.h"

namespace plotvue {

const MonthlyScreen frmProduct{
    .window = "frmProduct",
    .needed = {{u"QXM31H"}},
    .day = 16,
    .rowsHangOnDashLine = true,
    .blocks = twoHalves(1),
    .types = salesTypesLong(),
    .subject =
        {{.text = u"Product: "},
         {.line = 2, .behind = u":", .from = 1, .length = 10, .lineEnd = false, .behindBeforeEnd = true},
         {.text = u" "},
         {.line = 2, .behind = u":", .from = 11, .lineEnd = false, .behindBeforeEnd = true}},
    .periods = periodsLong(),
};

} // namespace plotvue
