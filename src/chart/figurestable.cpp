#include "chart/figurestable.h"

#include "capture/number.h"
#include "chart/drawable.h"

#include <algorithm>
#include <cmath>

namespace plotvue {

namespace {

// A figure as it was read from the screen. The figures of PlotData cannot be used, because large ones are
// clamped.
Text cell(const std::vector<double>& figures, std::size_t point, char16_t decimalSign)
{
    if (point >= figures.size() || !std::isfinite(figures[point]))
        return {};
    Text text = plainNumber(figures[point]);
    std::ranges::replace(text, u'.', decimalSign);
    return text;
}

} // namespace

Text figuresTable(const PlotData& data, char16_t decimalSign)
{
    const int lines = data.components() ? 1 : data.pointCount();
    if (data.series().empty() || lines == 0)
        return {};
    Text table;
    for (const PlotData::Series& series : data.series())
        table += u'\t' + drawable(series.name);
    table += u"\r\n";
    for (int point = 0; point < lines; ++point) {
        table += data.components() ? Text() : drawable(data.fullLabel(point));
        for (const PlotData::Series& series : data.series())
            table += u'\t' +
                     cell(data.chart().series[series.number], static_cast<std::size_t>(point), decimalSign);
        table += u"\r\n";
    }
    return table;
}

} // namespace plotvue
