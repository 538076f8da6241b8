// The windows of all screens and the start-up window that leads to them.
#pragma once

#include "app/startup.h"

#include <memory>

namespace plotvue {

class Application {
public:
    explicit Application(Platform& platform);

    // Starts the process: the start-up window loads.
    void start();

    // Every window, loaded or not: the start-up window and those of each screen.
    std::vector<Window*> windows();

    // The window of that name; null when there is none.
    Window* window(Name name);

    // The window that a screen opens.
    Window& windowOf(const Screen& screen) { return *startup_.windows.at(&screen); }

private:
    Platform& platform_;
    Startup startup_;
    std::vector<std::unique_ptr<Window>> others_;
    std::vector<DrillDownWindow*> drillDowns_; // of others_
};

} // namespace plotvue
