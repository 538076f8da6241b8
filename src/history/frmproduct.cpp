// Product history.
//
//   1  QXM31H       10/11/99     THREE RIVERS FUEL & LUBRICANTS                14:32:08
//   2  PRODUCT:0020450001DIESEL FUEL NO. 2 LOW SULFUR
//   3  SALES HISTORY BY MONTH, 25 MONTHS                  VOLUME IN GALLONS
//   4  MONTH    VOLUME     SALES    PROFIT      MONTH    VOLUME     SALES    PROFIT
//   5  ----- --------- --------- ---------      ----- --------- --------- ---------
//   6  OCT99     48725  43755.05   3118.40
//   7  SEP99    129942 115258.92   9031.08      SEP98    121950  93174.61   7635.50

#include "history/salesfields.h"

namespace plotvue {

namespace {

// Kept: dashes in the rest of the text (docs/kept.md).
MonthPlace placeAfterDashLine(const MonthlyScreen& screen, const ScreenLines& lines, int month)
{
    MonthPlace place = placeInBlocks(screen, lines, month);
    place.line += lines.dashLine();
    return place;
}

// Cuts line 2, `from` characters after its colon. Kept: the last character of a line (docs/kept.md).
TextSpan afterColon(const ScreenLines& lines, int from, Position length)
{
    const TextSpan line = withoutLast(lines[2]);
    return mid(line, find(line, u":") + from, length);
}

TextSpan productNumber(const ScreenLines& lines, const DataType&)
{
    return afterColon(lines, 1, 10);
}

TextSpan productName(const ScreenLines& lines, const DataType&)
{
    return afterColon(lines, 11, toTheEnd);
}

} // namespace

const MonthlyScreen frmProduct{
    .window = "frmProduct",
    .words = {{u"QXM31H"}},
    .day = 16,
    .blocks = twoHalves(1),
    .place = placeAfterDashLine,
    .types = salesTypesLong(),
    .subject = {{.text = u"Product: "}, {.cut = productNumber}, {.text = u" "}, {.cut = productName}},
    .periods = periodsLong(),
};

} // namespace plotvue
