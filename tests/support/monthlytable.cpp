#include "support/monthlytable.h"

#include "capture/utf8.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace plotvue::test {

namespace {

constexpr TextSpan lineEnd = u"\r\n";
constexpr int mostLongLabels = 18;

} // namespace

HostScreen::HostScreen(TextSpan capture)
{
    while (!capture.empty()) {
        const std::size_t end = capture.find(lineEnd);
        lines_.emplace_back(capture.substr(0, end));
        capture.remove_prefix(end == TextSpan::npos ? capture.size() : end + lineEnd.size());
    }
}

Text HostScreen::text() const
{
    Text result;
    for (const Text& line : lines_)
        result.append(line).append(lineEnd);
    return result;
}

Text HostScreen::characters(int line, int column, int width) const
{
    const Text& found = lines_.at(static_cast<std::size_t>(line) - 1);
    const std::size_t from = std::min(static_cast<std::size_t>(column) - 1, found.size());
    return found.substr(from, static_cast<std::size_t>(width));
}

double HostScreen::number(int line, int column, int width) const
{
    std::string digits = toUtf8(characters(line, column, width));
    std::erase(digits, ',');
    digits.erase(digits.find_last_not_of(' ') + 1);
    std::size_t end = 0;
    const double value = std::stod(digits, &end);
    if (end != digits.size())
        throw std::runtime_error("no number: '" + digits + "'");
    return value;
}

HostScreen& HostScreen::put(int line, int column, TextSpan text)
{
    Text& target = lines_.at(static_cast<std::size_t>(line) - 1);
    const std::size_t from = static_cast<std::size_t>(column) - 1;
    target.resize(std::max(target.size(), from + text.size()), u' ');
    target.replace(from, text.size(), text);
    return *this;
}

HostScreen& HostScreen::replaceLine(int line, TextSpan text)
{
    lines_.at(static_cast<std::size_t>(line) - 1) = text;
    return *this;
}

HostScreen& HostScreen::moveDown(int line)
{
    lines_.insert(lines_.begin() + line - 1, u".");
    return *this;
}

MonthlyTable::MonthlyTable(HostScreen screen, std::vector<MonthColumn> columns)
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

std::vector<Text> MonthlyTable::labels(int months) const
{
    std::vector<Text> result;
    for (int month = 1; month <= months; ++month)
        result.push_back(months > mostLongLabels ? characters(month, {0, 1}) + characters(month, {3, 2})
                                                 : characters(month, {0, 5}));
    return result;
}

MonthlyTable::Place MonthlyTable::placeOf(int month) const
{
    for (const MonthColumn& run : columns_)
        if (month >= run.firstMonth && month < run.firstMonth + run.months)
            return {run.line + (month - run.firstMonth) * run.step, run.column};
    throw std::runtime_error("the screen holds no month " + std::to_string(month));
}

} // namespace plotvue::test
