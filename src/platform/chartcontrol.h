// The chart operations. A chart is fed through a data object that collects whole arrays.
#pragma once

#include "chart/content.h"

#include <cstdint>

namespace plotvue {

class ChartArrayData {
public:
    void AddArray(const std::vector<double>& values);       // the next series
    void AddArray(const std::vector<std::int32_t>& values); // the next series
    void AddArray(const std::vector<Text>& labels);         // the point labels, in place of earlier ones

    const std::vector<std::vector<double>>& series() const { return series_; }
    const std::vector<Text>& labels() const { return labels_; }

private:
    std::vector<std::vector<double>> series_;
    std::vector<Text> labels_;
};

class ChartControl {
public:
    virtual ~ChartControl() = default;

    void SetChartData(const ChartArrayData& data); // in place of what the chart held
    void SetTitle(int position, TextSpan text);    // drawn are 1 (small, above), 2 (large) and 3 (below)
    void SetValueDecimals(int decimals);
    void ShowSeries(int series, bool shown);
    void SetSeriesLegend(int series, TextSpan text);
    void SetSeriesColor(int series, Colour colour);
    void SetAxisMin(double value);
    void SetAxisMax(double value);
    void ClearLegends();

    const ChartContent& content() const { return content_; }

protected:
    virtual void contentChanged() {}

private:
    ChartContent content_;
};

} // namespace plotvue
