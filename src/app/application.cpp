#include "app/application.h"

#include "history/historywindow.h"
#include "ranked/listwindow.h"

namespace plotvue {

namespace {

// Makes the windows of a screen and returns the one that the screen opens.
struct WindowMaker {
    Application& app;

    Window& operator()(const MonthlyScreen* screen) const
    {
        return add(std::make_unique<HistoryWindow>(app.platform, app.startup, *screen));
    }
    Window& operator()(MakeWindow make) const { return add(make(app.platform, app.startup)); }
    Window& operator()(const Ranked& ranked) const
    {
        auto drillDown = std::make_unique<DrillDownWindow>(app.platform, *ranked.drillDown);
        app.drillDowns.push_back(drillDown.get());
        add(std::move(drillDown));
        return add(std::make_unique<RankedListWindow>(app.platform, app.startup, *app.drillDowns.back(),
                                                      app.drillDowns, *ranked.list));
    }

    Window& add(std::unique_ptr<Window> window) const { return *app.windows.emplace_back(std::move(window)); }
};

} // namespace

Application::Application(Platform& desktop) : platform(desktop), startup(desktop)
{
    for (const Screen& screen : screens)
        startup.windows[&screen] = &std::visit(WindowMaker{*this}, screen.window);
}

void Application::start()
{
    platform.run([this] { startup.show(); });
}

} // namespace plotvue
