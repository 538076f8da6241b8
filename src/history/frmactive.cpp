// Active customer count: how many customers bought, by line of business.
//
//   1   QXMACTIVE                    CUSTOMERS WITH A PURCHASE IN THE MONTH     01/20/00
//   2   BRAMBLEWICK FUEL CO - ALL BRANCHES
//   3   MON     FUELS   LUBES CARDLCK     ALL    MON     FUELS   LUBES CARDLCK     ALL
//   4   JAN00   1,265     290     498   1,751
//   5   DEC99   1,865     436     789   2,636
//   6   NOV99   1,733     441     815   2,550    NOV98   1,651     424     681   2,351
//
// "All" is the host's own column, not a sum. The data type is told in the title, not above it; the second
// title is line 2 as a whole.

#include "history/salesfields.h"
#include "history/screens.h"

namespace plotvue {

const MonthlyScreen frmActive{
    .window = "frmActive",
    .needed = {{u"QXMACTIVE"}},
    .blocks = {{.firstMonth = 1, .column = 1, .row = 4}, {.firstMonth = 15, .column = 42, .row = 6}},
    .skippedMonths = 1,
    .dropCommas = true,
    .second = SecondSeries::None,
    .types = {{.option = u"Fuels", .value = figure({5, 9}), .suffix = u" - Fuels"},
              {.option = u"Lubes/Other", .value = figure({13, 9}), .suffix = u" - Lubes/Other"},
              {.option = u"Cardlock", .value = figure({21, 9}), .suffix = u" - Cardlock"},
              {.option = u"All", .value = figure({29, 8}), .suffix = u" - All"}},
    .subject = {{.text = u"Count of Active Customers"}},
    .subject2 = {{.line = 2, .from = 1, .lineEnd = false}},
    .periods = periodsShort(),
    .typeOrder = {3, 1, 0, 2},
};

} // namespace plotvue
