#include "history/monthlyscreen.h"

#include "capture/failure.h"
#include "capture/number.h"

#include <algorithm>

namespace plotvue {

namespace {

constexpr int maxLongLabels = 18;

} // namespace

MonthPlace placeInBlocks(const MonthlyScreen& screen, const ScreenLines&, int month)
{
    const auto hasBegun = [&](const Block& block) { return month >= block.firstMonth; };
    const Block& block = *std::find_if(screen.blocks.rbegin(), screen.blocks.rend(), hasBegun);
    return {block.column, block.line + month - block.firstMonth};
}

double MonthRow::read(Field field) const
{
    const TextSpan text = mid(line, column + field.offset, field.width);
    return dropCommas ? leadingNumberWithoutCommas(text) : leadingNumber(text);
}

MonthLabel monthAndYear(const MonthRow& row, int months, int)
{
    const Text full(mid(row.line, row.column, 5));
    if (months <= maxLongLabels)
        return {full, full};
    // Kept: labels of three characters (docs/kept.md).
    return {Text(mid(row.line, row.column, 1)) + Text(mid(row.line, row.column + 3, 2)), full};
}

Value valueOf(Field field)
{
    return [=](const MonthRow& row) { return row.read(field); };
}

Value quotientTimesHundred(Field a, Field b)
{
    return [=](const MonthRow& row) { return percentage(row.read(b), [&] { return row.read(a); }); };
}

Value hundredTimesQuotient(Field a, Field b)
{
    return [=](const MonthRow& row) {
        const double divisor = row.read(b);
        return divisor == 0 ? 0 : finite(finite(100 * row.read(a)) / divisor);
    };
}

bool hasOwnSecondSeries(const MonthlyScreen& screen)
{
    return std::any_of(screen.types.begin(), screen.types.end(),
                       [](const DataType& type) { return type.second != nullptr; });
}

} // namespace plotvue
