// G/L history: one account over five years, a row for each calendar month and a column for each year.
//
//   1   PFMGLARCH1                   GENERAL LEDGER ARCHIVE              01/12/00
//   2    ACCOUNT:4010-00 HEATING OIL SALES
//   3   LOCATION:ALL TERMINALS
//   4   ACTIVITY FROM 01/1995 TO 12/1999
//   6    JAN -1,010,294.59 -1,137,042.52 -1,166,225.43 -1,198,271.50 -1,277,492.50
//   17   DEC -1,025,888.69 -1,052,613.16 -1,112,255.06 -1,191,640.76 -1,338,832.50
//
// The newest point is always December of the last column. Amounts are whole numbers, and an account that is
// mostly negative is drawn positive.

#include "history/salesfields.h"
#include "history/screens.h"

namespace plotvue {

namespace {

constexpr Field amount{0, 13};

} // namespace

const MonthlyScreen frmGLarch{
    .window = "frmGLarch",
    .needed = {{u"PFMGLARCH1"}},
    .blocks = {{.firstMonth = 1, .column = 62, .row = 17, .step = -1, .years = 4},
               {.firstMonth = 13, .column = 48, .row = 17, .step = -1, .years = 3},
               {.firstMonth = 25, .column = 34, .row = 17, .step = -1, .years = 2},
               {.firstMonth = 37, .column = 20, .row = 17, .step = -1, .years = 1},
               {.firstMonth = 49, .column = 6, .row = 17, .step = -1, .years = 0}},
    .dropCommas = true,
    .baseYear = Piece{.line = 4, .behind = u"/", .from = 1, .length = 4},
    .labels = MonthLabels::CalendarRows,
    .amounts = Amounts::WholeTurned,
    .second = SecondSeries::None,
    .types = {{.value = figure(amount)}},
    .subject = {{.text = u"G/L History for Acct: "},
                {.line = 2, .behind = u":", .from = 1, .lineEnd = false}},
    .subject2 = {{.line = 3, .behind = u":", .from = 1, .lineEnd = false}},
    .periods = {{u"1", 12}, {u"2", 24}, {u"3", 36}, {u"4", 48}, {u"5", 60}},
    .periodFrame = u"Years",
    .periodOrder = {0, 1, 2, 3, 4},
    .typeOrder = {},
};

} // namespace plotvue
