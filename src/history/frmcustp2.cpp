// Customer/product/pack history: one customer for one product in one pack at one warehouse.
//
//   1  QXM12P2 24MAY00   THREE RIVERS FUEL & LUBRICANTS   CUSTOMER BY PRODUCT AND PACK
//   2  CUSTOMER:104420 GREENWATER HAULING SALES REP 014
//   3  PRODUCT: 0020610015 PACK:055 DRUM OF 55 GALLONS
//   4  WHSE: 001 HARBOR ROAD     YTD QTY   43826.29
//   5  MONTH       QTY     SALES    PROFIT      MONTH       QTY     SALES    PROFIT
//   6  ----- --------- --------- ---------      ----- --------- --------- ---------
//   7  MAY00   7544.31  87910.01  12180.02
//   8  APR00  10319.80 121826.16  15913.88      APR99   8991.43 102709.49  18181.62
//
// The customer never reaches past column 34, where the host prints the next field of the line.

#include "history/salesfields.h"
#include "history/screens.h"

namespace plotvue {

const MonthlyScreen frmCustP2{
    .window = "frmCustP2",
    .needed = {{u"YTD"}, {u"QTY"}, {u"QXM12P2"}},
    .shortPositions = ShortPositions::All,
    .day = 8,
    .blocks = twoHalves(7),
    .types = salesTypesLong(),
    .subject = {{.text = u"Customer: "}, {.line = 2, .behind = u":", .from = 1, .lineLimit = 35}},
    .subject2 = {{.text = u"Prod/Pak/WH:  "},
                 {.line = 3, .behind = u":", .from = 2, .length = 10},
                 {.text = u" /"},
                 {.line = 3, .behind = u"PACK:", .from = 5, .length = 3},
                 {.text = u"/"},
                 {.line = 4, .behind = u":", .from = 2, .length = 3}},
    .periods = periodsLong(),
};

} // namespace plotvue
