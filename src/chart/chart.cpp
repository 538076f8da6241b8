#include "chart/chart.h"

namespace plotvue {

void ChartArrayData::AddArray(const std::vector<double>& values)
{
    series_.push_back(values);
}

void ChartArrayData::AddArray(const std::vector<Text>& labels)
{
    labels_ = labels;
}

void Chart::SetChartData(const ChartArrayData& data)
{
    series = data.series_;
    labels = data.labels_;
    fullLabels = data.fullLabels_;
}

void Chart::SetTitle(int position, TextSpan text)
{
    titles[position] = text;
}

void Chart::showSeries(int number, bool shown)
{
    if (shown)
        hidden.erase(number);
    else
        hidden.insert(number);
}

} // namespace plotvue
