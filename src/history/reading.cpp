#include "history/reading.h"

#include "capture/failure.h"
#include "capture/month.h"
#include "capture/number.h"
#include "history/titles.h"

#include <algorithm>

namespace plotvue {

namespace {

constexpr int mostLongLabels = 18;
constexpr int baseYearLine = 4;

// One month's row on the screen.
struct MonthRow {
    const MonthlyScreen& screen;
    const Block& block;
    TextSpan line;

    double read(Field field) const
    {
        const TextSpan text = mid(line, block.column + field.offset, field.width);
        return screen.dropCommas ? leadingNumberWithoutCommas(text) : leadingNumber(text);
    }

    double value(const Value& value) const
    {
        switch (value.is) {
        case Value::Is::Nothing:
            break;
        case Value::Is::Figure:
            return read(value.a);
        case Value::Is::QuotientTimesHundred: {
            const double divisor = read(value.b);
            return divisor == 0 ? 0 : finite(finite(read(value.a) / divisor) * 100);
        }
        case Value::Is::HundredTimesQuotient: {
            const double divisor = read(value.b);
            return divisor == 0 ? 0 : finite(finite(100 * read(value.a)) / divisor);
        }
        case Value::Is::Rest:
            return finite(finite(read(value.a) - read(value.b)) - read(value.c));
        }
        return 0;
    }
};

MonthRow rowOf(const MonthlyScreen& screen, const ScreenLines& lines, int month)
{
    const auto begun = [&](const Block& block) { return month >= block.firstMonth; };
    const Block& block = *std::find_if(screen.blocks.rbegin(), screen.blocks.rend(), begun);
    const int base = screen.rowsHangOnDashLine ? lines.dashLine() : 0;
    return {screen, block, lines[base + block.row + (month - block.firstMonth) * block.step]};
}

Text labelOf(const MonthRow& row, int months, int baseYear)
{
    if (row.screen.labels == MonthLabels::CalendarRows) {
        if (!holds(row.line, u"JAN"))
            return Text(mid(row.line, 2, 3));
        return Text(mid(row.line, 2, 1)) + Text(mid(signedNumber(baseYear + row.block.years), 4, 2));
    }
    const int column = row.block.column;
    if (months <= mostLongLabels)
        return Text(mid(row.line, column, 5));
    return Text(mid(row.line, column, 1)) + Text(mid(row.line, column + 3, 2));
}

double dayOf(TextSpan capture, Position at)
{
    const TextSpan field = mid(capture, at, 2);
    return readLine(field, [&] { return leadingNumber(field); });
}

// Turns an account that is mostly negative.
void turn(std::vector<double>& values)
{
    int tally = 0;
    for (const double value : values)
        tally += value < 0 ? -1 : value > 0 ? 1 : 0;
    if (tally < 0)
        for (double& value : values)
            value = toInt32(0 - value, u"An amount on the screen");
}

} // namespace

Acceptance accept(const MonthlyScreen& screen, TextSpan capture)
{
    Acceptance result;
    for (const Needed& needed : screen.needed) {
        result.identifier = find(capture, needed.word);
        if (screen.shortPositions != ShortPositions::None)
            toInt16(static_cast<double>(result.identifier), u"The copied text");
        const bool absent = result.identifier == 0;
        const bool late = result.identifier >= needed.below;
        if (!late && (!absent || needed.missing == Needed::Missing::Passes))
            continue;
        result.end = needed.missing == Needed::Missing::End;
        result.stop = !result.end && needed.missing != Needed::Missing::GoOn;
        result.leave |= !result.end;
        if (result.stop || result.end)
            break;
    }
    return result;
}

MonthlyFigures readMonths(const MonthlyScreen& screen, TextSpan capture, Position identifier, int months,
                          const DataType& type)
{
    const double day = screen.day ? dayOf(capture, identifier + *screen.day) : 0;

    const ScreenLines lines(capture);
    // The year is read as soon as its line is cut, before the reader can run out of text further down.
    int baseYear = 0;
    if (screen.baseYear && lines.count() >= baseYearLine)
        baseYear = readLine(lines[baseYearLine], [&] {
            return toInt16(leadingNumber(cut(*screen.baseYear, lines, ShortPositions::None)),
                           u"The first year on the screen");
        });
    lines.requireAll();

    MonthlyFigures figures;
    const auto slots = static_cast<std::size_t>(months) + 1;
    figures.values.resize(slots);
    figures.labels.resize(slots);
    if (screen.second != SecondSeries::None)
        figures.second.resize(slots);

    double part = 1;
    for (int month = 1; month <= months; ++month) {
        const auto slot = static_cast<std::size_t>(months - month);
        const MonthRow row = rowOf(screen, lines, month + screen.skippedMonths);
        readLine(row.line, [&] {
            figures.labels[slot] = labelOf(row, months, baseYear);
            if (screen.day && month == 1)
                part = elapsedPart(daysOfMonth(mid(row.line, row.block.column, 3)), day);
            for (const Field field : screen.readAlways)
                row.read(field);
            const double value = row.value(type.value);
            figures.values[slot] =
                screen.amounts == Amounts::WholeTurned ? toInt32(value, u"An amount on the screen") : value;
            if (screen.second == SecondSeries::OwnValue)
                figures.second[slot] = row.value(type.second);
            else if (screen.second == SecondSeries::Projection && type.projected && month == 1)
                figures.second[slot] = finite(finite(value / part) - value);
        });
    }
    if (screen.amounts == Amounts::WholeTurned)
        turn(figures.values);

    figures.subject = compose(screen.subject, lines, screen.shortPositions);
    figures.subject += type.suffix;
    figures.subject2 = compose(screen.subject2, lines, screen.shortPositions);
    return figures;
}

} // namespace plotvue
