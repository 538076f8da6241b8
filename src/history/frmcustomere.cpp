// Customer sales history: one customer for one product.
//
//   1  THREE RIVERS FUEL & LUBRICANTS   CUSTOMER HISTORY   QXM12E1  RUN:09/20/99
//   2  CUSTOMER:104420 GREENWATER BROS HAULING INC.  TERMS: 2% 10 NET 30
//   3  PRODUCT:0020450002 UNLEADED REGULAR
//   4  MONTH   GALLONS     SALES    PROFIT      MONTH   GALLONS     SALES    PROFIT
//   5  ----- --------- --------- ---------      ----- --------- --------- ---------
//   6  SEP99 101728.55  87285.95   4935.34
//   7  AUG99 159528.35 139888.96   9615.13      AUG98 158825.34 135058.07   7580.57

#include "history/salesfields.h"

namespace plotvue {

const MonthlyScreen frmCustomerE{
    .window = "frmCustomerE",
    .words = {{u"QXM12E1"}},
    .shortPositions = ShortPositions::OfWords,
    .day = 16,
    .blocks = twoHalves(6),
    .types = salesTypesLong(),
    .subject = {{.text = u"Customer: "}, {.line = 2, .after = u":", .from = 1, .length = 35}},
    .subject2 = {{.text = u"Product: "}, {.line = 3, .after = u":", .from = 1, .length = 10}},
    .periods = periodsLong(),
};

} // namespace plotvue
