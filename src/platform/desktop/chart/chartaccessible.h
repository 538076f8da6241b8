// What assistive technology is told of a chart: its titles as name, and one child a point that reads it out.
#pragma once

namespace plotvue {

class ChartWidget;

// Once for all charts; costs nothing until someone listens.
void offerChartsToAssistiveTechnology();
void announceContent(ChartWidget& chart); // its name and every point's may be others
void announceCurrentPoint(ChartWidget& chart);

} // namespace plotvue
