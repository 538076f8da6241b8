// Late charge analysis: what was charged, what is open, what was paid.
//
//   1   QXMLCHIST                    LATE CHARGE HISTORY                 09/24/99
//   3   MON     CHARGED      OPEN     PAID       MON     CHARGED      OPEN     PAID
//   4   SEP99  5,727.96  4,961.21   667.08
//   5   AUG99  5,914.47  3,672.97 2,003.37       AUG98  6,489.12    368.23 5,527.76
//
// Paid and lost stand on each other; for the other data types the second series is hidden. Every amount of a
// row is read whatever is charted.

#include "history/salesfields.h"
#include "history/screens.h"

namespace plotvue {

namespace {

constexpr Field total{6, 9}, open{16, 9}, paid{25, 9};

} // namespace

const MonthlyScreen frmLateCharge{
    .window = "frmLateCharge",
    .captionOnLoad = u"Late Charge Analysis",
    .needed = {{u"QXMLCHIST"}},
    .blocks = twoHalves(4),
    .dropCommas = true,
    .readAlways = {total, open, paid},
    .second = SecondSeries::OwnValue,
    .types = {{.option = u"Total", .caption = u"Total Charges", .value = figure(total)},
              {.option = u"Open", .caption = u"Open", .value = figure(open)},
              {.option = u"Paid", .caption = u"Paid", .value = figure(paid)},
              {.option = u"Paid %",
               .caption = u"% Collected",
               .decimals = 1,
               .value = quotientTimesHundred(paid, total)},
              {.option = u"Paid/Lost",
               .caption = u"Paid/Lost",
               .value = figure(paid),
               .second = rest(total, open, paid)}},
    .subject = {{.text = u"Late Charge History"}},
    .periods = periodsShort(),
    .typeOrder = {4, 3, 0, 2, 1},
    .legends = {{0, u"Paid"}, {1, u"Lost"}},
};

} // namespace plotvue
