#include "history/historywindow.h"

#include "capture/failure.h"
#include "history/monthlyreader.h"
#include "window/commoncontrols.h"

namespace plotvue {

namespace {

OptionFrame periodFrame(const MonthlyScreen& screen)
{
    OptionFrame frame{.name = "Frame2",
                      .caption = screen.periodFrame,
                      .spokenName = u"Months",
                      .group = "opt12",
                      .options = {},
                      .chosen = 0};
    for (const int index : screen.periodOrder)
        frame.options.push_back({index, screen.periods.at(static_cast<std::size_t>(index)).caption});
    return frame;
}

OptionFrame typeFrame(const MonthlyScreen& screen)
{
    std::vector<Option> options;
    for (const int index : screen.typeOrder)
        options.push_back({index, screen.types.at(static_cast<std::size_t>(index)).option});
    return dataTypeFrame(std::move(options), screen.typeFrame);
}

} // namespace

Declaration HistoryWindow::declare() const
{
    ChartDesign design{.legends = screen_.legends};
    if (screen_.day) {
        design.projection = 1;
        design.legends = {{1, u"Projected"}};
    }
    std::vector<OptionFrame> frames{periodFrame(screen_)};
    if (!screen_.typeOrder.empty())
        frames.push_back(typeFrame(screen_));
    return declareScreenWindow(screen_.window, screen_.caption,
                               {{ChartBox{.name = "ChartFX1", .chart = {.design = design}}, 1}},
                               std::move(frames));
}

bool HistoryWindow::drawChart(const Text& capture)
{
    const Acceptance acceptance = accept(screen_, capture);
    // Kept: a window charted while hidden, a text that ends the process (docs/kept.md).
    if (acceptance.leave)
        refuse();
    if (acceptance.end)
        platform().end();
    if (acceptance.stop)
        return false;

    const DataType& type = chosenType();
    const MonthlyFigures series = nameFailedLine(
        capture, [&] { return readMonths(screen_, capture, acceptance.identifier, chosenMonths(), type); });

    controls().chart("ChartFX1").change([&](Chart& ChartFX1) {
        if (hasOwnSecondSeries(screen_))
            ChartFX1.showSeries(1, type.second != nullptr);
        if (!type.caption.empty()) {
            ChartFX1.SetTitle(1, type.caption);
            ChartFX1.SetValueDecimals(type.decimals);
        }
        ChartFX1.SetTitle(2, series.subject);
        if (!screen_.subject2.empty())
            ChartFX1.SetTitle(3, series.subject2);
        ChartArrayData data;
        data.AddArray(series.values);
        if (!series.second.empty())
            data.AddArray(series.second);
        data.AddArray(series.labels);
        data.setFullLabels(series.fullLabels);
        ChartFX1.SetChartData(data);
    });
    return true;
}

int HistoryWindow::chosenMonths() const
{
    return screen_.periods.at(static_cast<std::size_t>(controls().options("opt12")->chosenIn(0))).months;
}

const DataType& HistoryWindow::chosenType() const
{
    const int index = screen_.typeOrder.empty() ? 0 : controls().options("optSales")->chosenIn(0);
    return screen_.types.at(static_cast<std::size_t>(index));
}

} // namespace plotvue
