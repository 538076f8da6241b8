// Active customer count: how many customers bought, by line of business.
//
//   1   QXMACTIVE                    CUSTOMERS WITH A PURCHASE IN THE MONTH     01/20/00
//   2   BRAMBLEWICK FUEL CO - ALL BRANCHES
//   3   MON     FUELS   LUBES CARDLCK     ALL    MON     FUELS   LUBES CARDLCK     ALL
//   4   JAN00   1,265     290     498   1,751
//   5   DEC99   1,865     436     789   2,636
//   6   NOV99   1,733     441     815   2,550    NOV98   1,651     424     681   2,351
//
// "All" is the host's own column, not a sum. The large title names the line of business.
// Kept: a month that is never charted, fields that share a column, decimals that are not set (docs/kept.md).

#include "history/salesfields.h"

namespace plotvue {

namespace {

TextSpan lineOfBusiness(const ScreenLines&, const DataType& type)
{
    return type.option;
}

} // namespace

const MonthlyScreen frmActive{
    .window = "frmActive",
    .words = {{u"QXMACTIVE"}},
    .blocks = twoHalves(5),
    .dropCommas = true,
    .types = {{.option = u"Fuels", .value = valueOf({5, 9})},
              {.option = u"Lubes/Other", .value = valueOf({13, 9})},
              {.option = u"Cardlock", .value = valueOf({21, 9})},
              {.option = u"All", .value = valueOf({29, 8})}},
    .subject = {{.text = u"Count of Active Customers - "}, {.cut = lineOfBusiness}},
    .subject2 = {{.line = 2, .from = 1, .lineEnd = false}},
    .periods = periodsShort(),
    .typeOrder = {3, 1, 0, 2},
};

} // namespace plotvue
