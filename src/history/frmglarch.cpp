// G/L history: one account over five years, a row for each calendar month and a column for each year.
//
//   1   PFMGLARCH1                   GENERAL LEDGER ARCHIVE              01/12/00
//   2    ACCOUNT:4010-00 HEATING OIL SALES
//   3   LOCATION:ALL TERMINALS
//   4   ACTIVITY FROM 01/1995 TO 12/1999
//   6    JAN -1,010,294.59 -1,137,042.52 -1,166,225.43 -1,198,271.50 -1,277,492.50
//   17   DEC -1,025,888.69 -1,052,613.16 -1,112,255.06 -1,191,640.76 -1,338,832.50
//
// The newest month is always December of the last column. The amounts are whole numbers.

#include "capture/failure.h"
#include "capture/number.h"
#include "history/monthlyscreens.h"

namespace plotvue {

namespace {

constexpr int years = 5;
constexpr int yearLine = 4;

// The oldest year is 0.
int yearOf(int month)
{
    return years - 1 - (month - 1) / 12;
}

MonthPlace placeInCalendar(const MonthlyScreen&, const ScreenLines&, int month)
{
    return {.column = 6 + 14 * yearOf(month), .line = 17 - (month - 1) % 12};
}

int yearAfterSlash(const ScreenLines& lines)
{
    const TextSpan line = lines[yearLine];
    return locateFailure(line, [&] {
        return toInt16(leadingNumber(mid(line, find(line, u"/") + 1, 4)), u"The first year on the screen");
    });
}

// "OCT", but "J99" for January; in full both have the year. Kept: January anywhere (docs/kept.md).
MonthLabel monthOrYear(const MonthRow& row, int, int firstYear)
{
    const Text month(mid(row.line, 2, 3)), year(mid(signedNumber(firstYear + yearOf(row.month)), 4, 2));
    return {holds(row.line, u"JAN") ? Text(mid(row.line, 2, 1)) + year : month, month + year};
}

// Kept: amounts of 32 bits (docs/kept.md).
double wholeAmount(const MonthRow& row)
{
    return toInt32(row.read({0, 13}), u"An amount on the screen");
}

// Kept: turned signs (docs/kept.md).
void turn(std::vector<double>& values)
{
    int sign = 0;
    for (const double value : values)
        sign += value < 0 ? -1 : value > 0 ? 1 : 0;
    if (sign < 0)
        for (double& value : values)
            value = toInt32(0 - value, u"An amount on the screen");
}

} // namespace

const MonthlyScreen frmGLarch{
    .window = "frmGLarch",
    .words = {{u"PFMGLARCH1"}},
    .place = placeInCalendar,
    .dropCommas = true,
    .firstYear = yearAfterSlash, // Kept: a failure before the wait (docs/kept.md).
    .label = monthOrYear,
    .finish = turn,
    .types = {{.value = wholeAmount}},
    .subject = {{.text = u"G/L History for Acct: "}, {.line = 2, .after = u":", .from = 1, .lineEnd = false}},
    .subject2 = {{.line = 3, .after = u":", .from = 1, .lineEnd = false}},
    .periods = {{u"1", 12}, {u"2", 24}, {u"3", 36}, {u"4", 48}, {u"5", 60}},
    .periodFrame = u"Years",
    .periodOrder = {0, 1, 2, 3, 4},
    .typeOrder = {},
};

} // namespace plotvue
