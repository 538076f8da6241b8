// Driver and truck history: one driver, or one truck, in one product category.
//
//   1   QXM855DH     02/19/00         DRIVER DELIVERY HISTORY, MONTHS AND YTD  PAGE 1
//   2    DRIVER: 031 T. OAKHALLOW
//   3    CATEGORY:HEATING OIL
//   4   MON         QTY     SALES    PROFIT      MON         QTY     SALES    PROFIT
//   6   FEB00 125565.05 137231.16  17149.87
//   7   JAN00 179285.34 195852.01  25457.29      JAN99 178483.37 179281.24  24796.05
//
// The two screens differ in the identifier, the title and the order of the data types.
// Kept: a window charted while hidden, options out of order (docs/kept.md).

#include "history/salesfields.h"

namespace plotvue {

namespace {

MonthlyScreen deliveryScreen(Name window, TextSpan identifier, TextSpan title, std::vector<int> typeOrder)
{
    return {
        .window = window,
        .words = {{u"YTD"}, {u"QTY"}, {identifier, RequiredWord::Otherwise::GoOn}},
        .day = 16,
        .blocks = twoHalves(6),
        .types = salesTypes(hundredTimesQuotient, u"G/P %", u"Unit G/P"),
        .subject = {{.text = title}, {.line = 2, .after = u":", .from = 2, .lineEnd = false}},
        .subject2 = {{.text = u"Category: "}, {.line = 3, .after = u":", .from = 1, .lineEnd = false}},
        .periods = periodsShort(),
        .typeOrder = std::move(typeOrder),
    };
}

} // namespace

const MonthlyScreen frmDriver = deliveryScreen("frmDriver", u"QXM855DH", u"Driver: ", {0, 2, 1, 3, 4});
const MonthlyScreen frmTruck = deliveryScreen("frmTruck", u"QXM855TH", u"Truck: ", {4, 3, 1, 2, 0});

} // namespace plotvue
