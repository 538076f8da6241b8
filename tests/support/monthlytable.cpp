#include "support/monthlytable.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace plotvue::test {

namespace {

constexpr int maxLongLabels = 18;

} // namespace

MonthlyTable::MonthlyTable(CaptureBuilder screen, std::vector<MonthColumn> columns)
    : screen_(std::move(screen)),
      columns_(std::move(columns))
{}

Text MonthlyTable::characters(int month, Columns columns) const
{
    const Place place = placeOf(month);
    return screen_.characters(place.line, place.column + columns.offset, columns.width);
}

double MonthlyTable::number(int month, Columns columns) const
{
    const Place place = placeOf(month);
    return screen_.number(place.line, place.column + columns.offset, columns.width);
}

std::vector<double> MonthlyTable::numbers(Columns columns, int months) const
{
    std::vector<double> result;
    for (int month = 1; month <= months; ++month)
        result.push_back(number(month, columns));
    return result;
}

std::vector<Text> MonthlyTable::fullLabels(int months) const
{
    std::vector<Text> labels;
    for (int month = 1; month <= months; ++month)
        labels.push_back(characters(month, {0, 5}));
    return labels;
}

std::vector<Text> MonthlyTable::labels(int months) const
{
    std::vector<Text> result;
    for (int month = 1; month <= months; ++month)
        result.push_back(months > maxLongLabels ? characters(month, {0, 1}) + characters(month, {3, 2})
                                                : characters(month, {0, 5}));
    return result;
}

void MonthlyTable::put(int month, int offset, TextSpan text)
{
    const Place place = placeOf(month);
    screen_.put(place.line, place.column + offset, text);
}

MonthlyTable::Place MonthlyTable::placeOf(int month) const
{
    for (const MonthColumn& run : columns_)
        if (month >= run.firstMonth && month < run.firstMonth + run.months)
            return {run.line + (month - run.firstMonth) * run.step, run.column};
    throw std::runtime_error("the screen holds no month " + std::to_string(month));
}

} // namespace plotvue::test
