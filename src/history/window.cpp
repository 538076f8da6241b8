#include "history/window.h"

#include "capture/failure.h"
#include "history/reading.h"

namespace plotvue {

Declaration HistoryWindow::declare() const
{
    return declareHistoryWindow(screen_);
}

Handlers HistoryWindow::handlers()
{
    return {{"opt12", [this](int) { opt12_Click(); }},
            {"optSales", [this](int) { optSales_Click(); }},
            {"cmdRefresh", [this](int) { cmdRefresh_Click(); }},
            {"cmdPrint", [this](int) { cmdPrint_Click(); }},
            {"cmdExit", [this](int) { cmdExit_Click(); }}};
}

void HistoryWindow::Form_Load()
{
    if (!screen_.captionOnLoad.empty())
        controls().caption.set(Text(screen_.captionOnLoad));
    RefreshChart();
}

void HistoryWindow::RefreshChart()
{
    const Text capture = platform().clipboardText();
    const Acceptance acceptance = accept(screen_, capture);
    if (acceptance.leave)
        cmdExit_Click();
    if (acceptance.end)
        platform().end();
    if (acceptance.stop)
        return;

    const DataType& type = chosenType();
    const MonthlyFigures figures = readCapture(
        capture, [&] { return readMonths(screen_, capture, acceptance.identifier, chosenMonths(), type); });

    controls().chart("ChartFX1").change([&](Chart& ChartFX1) {
        if (screen_.second == SecondSeries::OwnValue)
            ChartFX1.showSeries(1, type.second.is != Value::Is::Nothing);
        if (!type.caption.empty()) {
            ChartFX1.SetTitle(1, type.caption);
            ChartFX1.SetValueDecimals(type.decimals);
        }
        ChartFX1.SetTitle(2, figures.subject);
        if (!screen_.subject2.empty())
            ChartFX1.SetTitle(3, figures.subject2);
        ChartArrayData data;
        data.AddArray(figures.values);
        if (screen_.second != SecondSeries::None)
            data.AddArray(figures.second);
        data.AddArray(figures.labels);
        ChartFX1.SetChartData(data);
    });
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
