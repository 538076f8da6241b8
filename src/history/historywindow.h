// The window of a monthly history screen: a chart, the periods, the data types and three buttons.
#pragma once

#include "history/monthlyscreen.h"
#include "window/screenwindow.h"

namespace plotvue {

class HistoryWindow : public ScreenWindow {
public:
    HistoryWindow(Platform& platform, Window& home, const MonthlyScreen& screen)
        : ScreenWindow(platform, home),
          screen_(screen)
    {}

    Name name() const override { return screen_.window; }

protected:
    Declaration declare() const override;
    bool drawChart(const Text& capture) override;

private:
    int chosenMonths() const;
    const DataType& chosenType() const;

    const MonthlyScreen& screen_;
};

} // namespace plotvue
