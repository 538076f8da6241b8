// G/L expense/volume history: one account's expense, the volume that goes with it, and cents per gallon.
//
//   1   PFMEXP1                      EXPENSE AND VOLUME BY MONTH         10/14/99
//   2    ACCOUNT: 6210-00 DELIVERY FLEET REPAIRS
//   3   LOCATION:ALL TERMINALS
//   5   MON       DOLLARS       VOLUME   CENTS  MON       DOLLARS       VOLUME   CENTS
//   6   OCT99   24,759.55   634,443.63  3.9026
//   7   SEP99   53,526.38 1,269,974.69  4.2148  SEP98   49,425.37 1,159,950.64  4.2610
//
// There is no date and no projection. The cents are the host's own column.
// The right half begins a column further to the left than on the sales screens.
// Kept: a month that is never charted, fields that share a column, blanks in texts (docs/kept.md).

#include "history/salesfields.h"

namespace plotvue {

const MonthlyScreen frmGLexpense{
    .window = "frmGLexpense",
    .words = {{u"PFMEXP1"}},
    .blocks = {{.firstMonth = 1, .column = 1, .line = 7}, {.firstMonth = 13, .column = 41, .line = 7}},
    .dropCommas = true,
    .types = {{.option = u"Dollars", .caption = u"Dollars", .value = valueOf({5, 12})},
              {.option = u"Volume", .caption = u"Volume", .value = valueOf({17, 14})},
              {.option = u"Cents/Gallon",
               .caption = u"Cents per Gallon",
               .decimals = 2,
               .value = valueOf({30, 8})}},
    .subject = {{.text = u"Expense/Volume for Acct:"},
                {.line = 2, .after = u":", .from = 1, .lineEnd = false}},
    .subject2 = {{.line = 3, .after = u":", .from = 1, .lineEnd = false}},
    .periods = periodsShort(),
    .typeOrder = {2, 0, 1},
};

} // namespace plotvue
