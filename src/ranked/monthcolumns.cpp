#include "ranked/monthcolumns.h"

#include "capture/failure.h"
#include "capture/number.h"

namespace plotvue {

namespace {

enum Type { Sales, Profit, Volume, Percent, PerUnit };

double monthFigure(TextSpan line, int month, Position width = columnWidth)
{
    return leadingNumber(mid(line, 8 * month - 5, width));
}

// The profit per hundred of the sales or of the volume.
double perHundred(TextSpan profitLine, Position profitWidth, TextSpan divisorLine, int month)
{
    return percentage(monthFigure(divisorLine, month),
                      [&] { return monthFigure(profitLine, month, profitWidth); });
}

double valueOf(const MonthLines& lines, int type, int month)
{
    switch (type) {
    case Sales:
        return monthFigure(lines.sales, month);
    case Profit:
        return monthFigure(lines.profit, month);
    case Volume:
        return monthFigure(lines.volume, month);
    case Percent:
        return perHundred(lines.profit, lines.profitWidthOfPercent, lines.sales, month);
    default:
        return perHundred(lines.profit, columnWidth, lines.volume, month);
    }
}

} // namespace

Text monthLabel(TextSpan labels, int month)
{
    return Text(mid(labels, 5 * month - 4, 5));
}

const std::array<MonthType, 5>& monthTypes()
{
    static const std::array<MonthType, 5> types{{{u"Sales", u"Sales", 0},
                                                 {u"Profit", u"Profit", 0},
                                                 {u"Volume", u"Volume", 0},
                                                 {u"G/P %", u"Profit%", 2},
                                                 {u"Unit G/P", u"Unit G/P", 2}}};
    return types;
}

std::vector<TextSpan> monthTypeOptions()
{
    std::vector<TextSpan> options;
    for (const MonthType& type : monthTypes())
        options.push_back(type.option);
    return options;
}

ChartArrayData monthSeries(TextSpan labels, const MonthLines& lines, int type)
{
    std::vector<Text> names(monthColumns);
    std::vector<double> values(monthColumns);
    for (int month = 1; month <= monthColumns; ++month) {
        const auto point = static_cast<std::size_t>(monthColumns - month);
        names[point] = monthLabel(labels, month);
        values[point] = valueOf(lines, type, month);
    }
    ChartArrayData data;
    data.AddArray(names);
    data.AddArray(values);
    return data;
}

} // namespace plotvue
