#include "app/application.h"

#include "history/historywindow.h"
#include "ranked/listwindow.h"

namespace plotvue {

namespace {

// Makes the windows of a screen and returns the one that the screen opens.
struct WindowMaker {
    Platform& platform;
    Window& home;
    std::vector<std::unique_ptr<Window>>& windows;
    std::vector<DrillDownWindow*>& drillDowns;

    Window& operator()(const MonthlyScreen* screen) const
    {
        return *windows.emplace_back(std::make_unique<HistoryWindow>(platform, home, *screen));
    }
    Window& operator()(MakeWindow make) const { return *windows.emplace_back(make(platform, home)); }
    Window& operator()(const Ranked& ranked) const
    {
        auto drillDown = std::make_unique<DrillDownWindow>(platform, *ranked.drillDown);
        drillDowns.push_back(drillDown.get());
        windows.push_back(std::move(drillDown));
        return *windows.emplace_back(
            std::make_unique<RankedListWindow>(platform, home, *drillDowns.back(), drillDowns, *ranked.list));
    }
};

} // namespace

Application::Application(Platform& platform) : platform_(platform), startup_(platform)
{
    for (const Screen& screen : screens)
        startup_.windows[&screen] =
            &std::visit(WindowMaker{platform, startup_, others_, drillDowns_}, screen.window);
}

void Application::start()
{
    platform_.run([this] { startup_.show(); });
}

std::vector<Window*> Application::windows()
{
    std::vector<Window*> all{&startup_};
    for (const auto& window : others_)
        all.push_back(window.get());
    return all;
}

Window* Application::window(Name name)
{
    for (Window* window : windows())
        if (window->name() == name)
            return window;
    return nullptr;
}

} // namespace plotvue
