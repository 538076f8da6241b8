// What the sales history screens of the host have in common: the volume, the sales and the profit of a month.
#pragma once

#include "history/monthlyscreens.h"

namespace plotvue {

inline constexpr Field volume{6, 9}, sales{16, 9}, profit{26, 9};

// The five data types of the sales screens. `percent` is quotientTimesHundred or hundredTimesQuotient.
// Kept: two names of a data type, a unit profit in hundredths (docs/kept.md).
inline std::vector<DataType> salesTypes(Value (*percent)(Field, Field), TextSpan percentOption,
                                        TextSpan unitOption)
{
    return {
        {.option = u"Sales", .caption = u"Sales", .value = valueOf(sales), .projected = true},
        {.option = u"Profit", .caption = u"Profit", .value = valueOf(profit), .projected = true},
        {.option = u"Volume", .caption = u"Volume", .value = valueOf(volume), .projected = true},
        {.option = percentOption, .caption = u"Profit%", .decimals = 2, .value = percent(profit, sales)},
        {.option = unitOption, .caption = u"Unit G/P", .decimals = 2, .value = percent(profit, volume)},
    };
}

inline std::vector<DataType> salesTypesLong()
{
    return salesTypes(quotientTimesHundred, u"GP %", u"G/P Units");
}

// Kept: 13 months for 12, captions that differ from window to window (docs/kept.md).
inline std::vector<Period> periodsLong()
{
    return {{u"12 Month", 13}, {u"24 Month", 25}, {u"6 Month", 6}};
}

inline std::vector<Period> periodsShort()
{
    return {{u"12", 13}, {u"24", 25}, {u"6", 6}};
}

// 13 months in the left half of the screen, and 12 more in the right half, where they begin a line lower.
// Kept: rows in fixed lines (docs/kept.md).
inline std::vector<Block> twoHalves(int firstLine)
{
    return {{.firstMonth = 1, .column = 1, .line = firstLine},
            {.firstMonth = 14, .column = 42, .line = firstLine + 1}};
}

} // namespace plotvue
