#include "platform/chartcontrol.h"

namespace plotvue {

void ChartArrayData::AddArray(const std::vector<double>& values)
{
    series_.push_back(values);
}

void ChartArrayData::AddArray(const std::vector<std::int32_t>& values)
{
    series_.emplace_back(values.begin(), values.end());
}

void ChartArrayData::AddArray(const std::vector<Text>& labels)
{
    labels_ = labels;
}

void ChartControl::SetChartData(const ChartArrayData& data)
{
    content_.series = data.series();
    content_.labels = data.labels();
    contentChanged();
}

void ChartControl::SetTitle(int position, TextSpan text)
{
    content_.titles[position] = text;
    contentChanged();
}

void ChartControl::SetValueDecimals(int decimals)
{
    content_.decimals = decimals;
    contentChanged();
}

void ChartControl::ShowSeries(int series, bool shown)
{
    if (shown)
        content_.hidden.erase(series);
    else
        content_.hidden.insert(series);
    contentChanged();
}

void ChartControl::SetSeriesLegend(int series, TextSpan text)
{
    content_.legends[series] = text;
    contentChanged();
}

void ChartControl::SetSeriesColor(int series, Colour colour)
{
    content_.colours[series] = colour;
    contentChanged();
}

void ChartControl::SetAxisMin(double value)
{
    content_.axisMin = value;
    contentChanged();
}

void ChartControl::SetAxisMax(double value)
{
    content_.axisMax = value;
    contentChanged();
}

void ChartControl::ClearLegends()
{
    content_.legends.clear();
    contentChanged();
}

} // namespace plotvue
