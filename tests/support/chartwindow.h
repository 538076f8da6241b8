// What the tests of windows that chart a host screen share: they open the window with a capture, choose its
// options, look at its chart and leave it.
#pragma once

#include "support/capturebuilder.h"
#include "support/session.h"

namespace plotvue::test {

enum Period { Year, TwoYears, HalfYear };                   // indices of opt12 on most monthly windows
enum SalesType { Sales, Profit, Volume, Percent, PerUnit }; // indices of optSales on the sales windows

// The figure of a month, the newest being 1, on the chart of a monthly window.
double valueOf(const auto& chart, int month, std::size_t series = 0)
{
    return chart.series.at(series).at(chart.labels.size() - 1 - static_cast<std::size_t>(month));
}

// Index and caption of options, from the top.
using Options = std::vector<std::pair<int, Text>>;

class ChartWindow {
public:
    ChartWindow(Name windowName, CaptureBuilder capture)
        : name(windowName),
          window(windowName),
          screen(std::move(capture))
    {}
    ChartWindow(Name windowName, std::string_view sampleName)
        : ChartWindow(windowName, CaptureBuilder(sample(sampleName)))
    {}

    // Starts the program with the screen, or with another capture, and says what happened.
    Events open() { return open(screen); }
    Events open(const CaptureBuilder& capture) { return open(capture.text()); }
    Events open(TextSpan capture);

    // Copies a capture, presses a button or chooses an option, and says what happened.
    Events refresh(const CaptureBuilder& capture) { return refresh(capture.text()); }
    Events refresh(TextSpan capture) { return click(capture, "cmdRefresh"); }
    Events click(TextSpan capture, Name control, int option = noOption);
    Events comeBack(TextSpan capture); // copies a capture and presses Refresh in the start-up window

    void choose(int type, int period); // chooses the two, where the window has such options

    auto chart() { return session.chart(window); }
    auto chart(int type, int period = Year)
    {
        choose(type, period);
        return chart();
    }
    Text title(int position) { return chart().titles.at(position); }
    double newest(int type, std::size_t series = 0) { return valueOf(chart(type), 1, series); }
    Options options(Name group);

    // The events when the window is left for the start-up window, and when it comes back.
    Events left() const { return {"hide " + name, "show startup"}; }
    Events back() const { return {"hide startup", "show " + name}; }

    void expectButtons();

    // Expects that the click leaves the window without changing its chart, and brings the window back.
    void expectRefusal(TextSpan capture, Name control = "cmdRefresh", int option = noOption);

    // Expects that Exit and the title bar leave the window, that it comes back with the same chart and
    // options, and that Refresh then charts the other capture.
    void expectExitKeepsTheChart(TextSpan otherCapture);

    // Expects one print job for each copy, and none when the dialog is cancelled or the printer fails.
    void expectPrints();

    static constexpr int noOption = -1;

    const std::string name;
    const Name window;
    CaptureBuilder screen;
    Session session;
};

} // namespace plotvue::test
