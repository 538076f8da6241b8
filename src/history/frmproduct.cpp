// Product history.
//
//   1  QXM31H       10/11/99     THREE RIVERS FUEL & LUBRICANTS                14:32:08
//   2  PRODUCT:0020450001DIESEL FUEL NO. 2 LOW SULFUR
//   3  SALES HISTORY BY MONTH, 25 MONTHS                  VOLUME IN GALLONS
//   4  MONTH    VOLUME     SALES    PROFIT      MONTH    VOLUME     SALES    PROFIT
//   5  ----- --------- --------- ---------      ----- --------- --------- ---------
//   6  OCT99     48725  43755.05   3118.40
//   7  SEP99    129942 115258.92   9031.08      SEP98    121950  93174.61   7635.50

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
