// Finds the windows of an application.
#pragma once

#include "app/application.h"

namespace plotvue::test {

// Every window, loaded or not: the start-up window and those of the screens.
inline std::vector<Window*> allWindows(Application& app)
{
    std::vector<Window*> all{&app.startup};
    for (const auto& window : app.windows)
        all.push_back(window.get());
    return all;
}

// The window of this name; null when there is none.
inline Window* windowNamed(Application& app, Name name)
{
    for (Window* window : allWindows(app))
        if (window->name() == name)
            return window;
    return nullptr;
}

// The window that a screen opens.
inline Window& windowOf(Application& app, const Screen& screen)
{
    return *app.startup.windows.at(&screen);
}

} // namespace plotvue::test
