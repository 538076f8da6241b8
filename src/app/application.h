// PlotVue: the start-up window, and the windows of all screens, to which it leads.
#pragma once

#include "app/startup.h"

#include <memory>

namespace plotvue {

struct Application {
    explicit Application(Platform& platform);

    void start(); // shows the start-up window

    Platform& platform;
    Startup startup;
    std::vector<std::unique_ptr<Window>> windows; // the windows of all screens
    std::vector<DrillDownWindow*> drillDowns;     // the drill-down windows among `windows`
};

} // namespace plotvue
