// Customer/category history: one customer in one product category.
//
//   1  QXM12P 09FEB00   THREE RIVERS FUEL & LUBRICANTS   CUSTOMER BY CATEGORY
//   2  CUSTOMER:104420 GREENWATER BROS HAULING INC.
//   3  PCAT:LUBRICANTS   YTD QTY   15090.06   YTD SALES  105850.68
//   4  MONTH       QTY     SALES    PROFIT      MONTH       QTY     SALES    PROFIT
//   5  ----- --------- --------- ---------      ----- --------- --------- ---------
//   6  FEB00   3771.92  26295.09   5083.72
//   7  JAN00  11318.14  79555.59  11207.01      JAN99  10069.95  69003.35   9839.33
//
// Kept: a pack screen in the category window (docs/kept.md).

#include "history/salesfields.h"

namespace plotvue {

namespace {

// Kept: a category mark far down (docs/kept.md).
constexpr Position farDown = 501;

bool isAbsentOrNear(Position position)
{
    return position < farDown;
}

} // namespace

const MonthlyScreen frmCustP{
    .window = "frmCustP",
    .words = {{u"YTD"}, {u"QTY"}, {.word = u"PCAT", .accepts = isAbsentOrNear}, {u"QXM12P"}},
    .shortPositions = ShortPositions::OfWordsAndTitles,
    .day = 7,
    .blocks = twoHalves(6),
    .types = salesTypesLong(),
    .subject = {{.text = u"Customer: "}, {.line = 2, .after = u":", .from = 1, .lineEnd = false}},
    .subject2 = {{.text = u"Category: "}, {.line = 3, .after = u":", .from = 1, .length = 10}},
    .periods = periodsLong(),
};

} // namespace plotvue
