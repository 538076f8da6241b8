// Accessibility of a chart. Its name is its titles; each point is a child whose name is the text of its
// read-out.
#pragma once

namespace plotvue {

class ChartWidget;

// Installs the accessibility factory for the process. It has no cost until assistive technology is used.
void offerChartsToAssistiveTechnology();
void announceContent(ChartWidget& chart); // the names of the chart and its points may have changed
void announceCurrentPoint(ChartWidget& chart);

} // namespace plotvue
