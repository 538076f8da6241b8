// What assistive technology is told about a chart: its titles as name, and a child for each point, whose name
// is its read-out.
#pragma once

namespace plotvue {

class ChartWidget;

// Installs it for the whole process; costs nothing until assistive technology is in use.
void offerChartsToAssistiveTechnology();
void announceContent(ChartWidget& chart); // tells that the names of the chart and its points may have changed
void announceCurrentPoint(ChartWidget& chart);

} // namespace plotvue
