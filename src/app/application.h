// All windows, and the table that leads from a screen to its window.
#pragma once

#include "app/startup.h"

#include <memory>

namespace plotvue {

class Application {
public:
    explicit Application(Platform& platform);

    // The process starts: the start-up window loads.
    void start();

    // The window of that name, loaded or not; null when there is none.
    Form* window(Name name);

private:
    Platform& platform_;
    Startup startup_;
    std::vector<std::unique_ptr<Form>> windows_;
};

} // namespace plotvue
