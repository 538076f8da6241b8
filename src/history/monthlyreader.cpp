#include "history/monthlyreader.h"

#include "capture/failure.h"
#include "capture/month.h"
#include "capture/number.h"
#include "history/titles.h"

namespace plotvue {

namespace {

MonthRow rowOf(const MonthlyScreen& screen, const ScreenLines& lines, int month)
{
    const MonthPlace place = screen.place(screen, lines, month);
    return {month, place.column, lines[place.line], screen.dropCommas};
}

// Kept: the day beside the identifier (docs/kept.md).
double dayAt(TextSpan capture, Position position)
{
    const TextSpan field = mid(capture, position, 2);
    return locateFailure(field, [&] { return leadingNumber(field); });
}

} // namespace

Acceptance accept(const MonthlyScreen& screen, TextSpan capture)
{
    Acceptance result;
    for (const RequiredWord& required : screen.words) {
        const Position position = find(capture, required.word);
        if (screen.shortPositions != ShortPositions::None)
            toInt16(static_cast<double>(position), u"The copied text");
        if (&required == &screen.words.back())
            result.identifier = position;
        if (required.accepts(position))
            continue;
        result.end = required.otherwise == RequiredWord::Otherwise::End;
        result.stop = required.otherwise == RequiredWord::Otherwise::Stop;
        result.leave |= !result.end;
        if (result.stop || result.end)
            break;
    }
    return result;
}

MonthlyFigures readMonths(const MonthlyScreen& screen, TextSpan capture, Position identifier, int months,
                          const DataType& type)
{
    const double day = screen.day ? dayAt(capture, identifier + *screen.day) : 0;

    const ScreenLines lines(capture);
    const int firstYear = screen.firstYear ? screen.firstYear(lines) : 0;
    lines.requireAll();

    MonthlyFigures series;
    // Kept: an empty point at the end (docs/kept.md).
    const auto slots = static_cast<std::size_t>(months) + 1;
    series.values.resize(slots);
    series.labels.resize(slots);
    series.fullLabels.resize(slots);
    if (screen.day || hasOwnSecondSeries(screen))
        series.second.resize(slots);

    for (int month = 1; month <= months; ++month) {
        const auto slot = static_cast<std::size_t>(months - month);
        const MonthRow row = rowOf(screen, lines, month);
        locateFailure(row.line, [&] {
            MonthLabel label = screen.label(row, months, firstYear);
            series.labels[slot] = std::move(label.onAxis);
            series.fullLabels[slot] = std::move(label.full);
            double part = 1;
            if (screen.day && month == 1)
                part = elapsedPart(daysOfMonth(mid(row.line, row.column, 3)), day);
            const double value = type.value(row);
            series.values[slot] = value;
            if (type.second)
                series.second[slot] = type.second(row);
            else if (type.projected && month == 1)
                series.second[slot] = finite(finite(value / part) - value);
        });
    }
    if (screen.finish)
        screen.finish(series.values);

    series.subject = compose(screen.subject, lines, type, screen.shortPositions);
    series.subject2 = compose(screen.subject2, lines, type, screen.shortPositions);
    return series;
}

} // namespace plotvue
