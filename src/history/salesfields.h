// What the host's sales history screens have in common: volume, sales and profit of a month.
#pragma once

#include "history/screen.h"

namespace plotvue {

inline constexpr Field volume{6, 9}, sales{16, 9}, profit{26, 9};

// The five data types of the sales screens. Their percentages are worked out in two orders, which differ in
// the last bit.
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

inline std::vector<Period> periodsLong()
{
    return {{u"12 Month", 13}, {u"24 Month", 25}, {u"6 Month", 6}};
}

inline std::vector<Period> periodsShort()
{
    return {{u"12", 13}, {u"24", 25}, {u"6", 6}};
}

// The host prints 13 months down the left half of the screen and 12 more, a line lower, down the right.
inline std::vector<Block> twoHalves(int firstLine)
{
    return {{.firstMonth = 1, .column = 1, .line = firstLine},
            {.firstMonth = 14, .column = 42, .line = firstLine + 1}};
}

} // namespace plotvue
