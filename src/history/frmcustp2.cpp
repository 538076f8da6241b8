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
// Kept: a customer of 34 columns (docs/kept.md).

#include "capture/failure.h"
#include "history/salesfields.h"

#include <algorithm>

namespace plotvue {

namespace {

// Throws Failure when the colon is the last character of the line, or is in column 35 or later.
TextSpan customer(const ScreenLines& lines, const DataType&)
{
    const TextSpan line = lines[2];
    const Position start = toInt16(static_cast<double>(find(line, u":")), u"A line of the copied text") + 1;
    const Position end = std::min<Position>(std::ssize(line), 35);
    return mid(line, start, end - start);
}

} // namespace

const MonthlyScreen frmCustP2{
    .window = "frmCustP2",
    .words = {{u"YTD"}, {u"QTY"}, {u"QXM12P2"}},
    .shortPositions = ShortPositions::OfWordsAndTitles,
    .day = 8,
    .blocks = twoHalves(7),
    .types = salesTypesLong(),
    .subject = {{.text = u"Customer: "}, {.line = 2, .cut = customer}},
    .subject2 = {{.text = u"Prod/Pak/WH:  "},
                 {.line = 3, .after = u":", .from = 2, .length = 10},
                 {.text = u" /"},
                 {.line = 3, .after = u"PACK:", .from = 5, .length = 3},
                 {.text = u"/"},
                 {.line = 4, .after = u":", .from = 2, .length = 3}},
    .periods = periodsLong(),
};

} // namespace plotvue
