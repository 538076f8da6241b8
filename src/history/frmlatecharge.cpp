// Late charge analysis: what was charged, what is open, what was paid.
//
//   1   QXMLCHIST                    LATE CHARGE HISTORY                 09/24/99
//   3   MON     CHARGED      OPEN     PAID       MON     CHARGED      OPEN     PAID
//   4   SEP99  5,727.96  4,961.21   667.08
//   5   AUG99  5,914.47  3,672.97 2,003.37       AUG98  6,489.12    368.23 5,527.76
//
// "Paid/Lost" charts what was lost on top of what was paid. Kept: a hidden series of zeros (docs/kept.md).

#include "capture/number.h"
#include "history/salesfields.h"

namespace plotvue {

namespace {

struct Amounts {
    double total, open, paid;
};

// Kept: figures that are not shown (docs/kept.md).
Amounts amountsIn(const MonthRow& row)
{
    return {row.read({6, 9}), row.read({16, 9}), row.read({25, 9})};
}

double total(const MonthRow& row)
{
    return amountsIn(row).total;
}

double open(const MonthRow& row)
{
    return amountsIn(row).open;
}

double paid(const MonthRow& row)
{
    return amountsIn(row).paid;
}

double percentPaid(const MonthRow& row)
{
    const Amounts amounts = amountsIn(row);
    return percentage(amounts.total, [&] { return amounts.paid; });
}

double lost(const MonthRow& row)
{
    const Amounts amounts = amountsIn(row);
    return finite(finite(amounts.total - amounts.open) - amounts.paid);
}

} // namespace

const MonthlyScreen frmLateCharge{
    .window = "frmLateCharge",
    .caption = u"Late Charge Analysis",
    .words = {{u"QXMLCHIST"}},
    .blocks = twoHalves(4),
    .dropCommas = true,
    .types = {{.option = u"Total", .caption = u"Total Charges", .value = total},
              {.option = u"Open", .caption = u"Open", .value = open},
              {.option = u"Paid", .caption = u"Paid", .value = paid},
              {.option = u"Paid %", .caption = u"% Collected", .decimals = 1, .value = percentPaid},
              {.option = u"Paid/Lost", .caption = u"Paid/Lost", .value = paid, .second = lost}},
    .subject = {{.text = u"Late Charge History"}},
    .periods = periodsShort(),
    .typeOrder = {4, 3, 0, 2, 1},
    .legends = {{0, u"Paid"}, {1, u"Lost"}},
};

} // namespace plotvue
