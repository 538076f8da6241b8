#include "history/window.h"

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
    OptionFrame frame{.name = "Frame1",
                      .caption = screen.typeFrame,
                      .spokenName = u"Data Type",
                      .group = "optSales",
                      .options = {},
                      .chosen = 0};
    for (const int index : screen.typeOrder)
        frame.options.push_back({index, screen.types.at(static_cast<std::size_t>(index)).option});
    return frame;
}

} // namespace

Declaration declareHistoryWindow(const MonthlyScreen& screen)
{
    ChartDesign design;
    if (screen.second == SecondSeries::Projection)
        design.projection = 1;
    if (screen.second != SecondSeries::None)
        design.legends = screen.legends;

    std::vector<Item> side{{periodFrame(screen)}};
    if (!screen.typeOrder.empty())
        side.push_back({typeFrame(screen)});
    side.push_back({Space{}, 1});
    side.push_back({Button{.name = "cmdPrint", .caption = u"&Print", .shortcut = u"Ctrl+P"}});
    side.push_back({Button{.name = "cmdRefresh", .caption = u"&Refresh", .shortcut = u"F5"}});
    side.push_back({Button{.name = "cmdExit", .caption = u"E&xit", .shortcut = u"Esc"}});

    return {.name = screen.window,
            .caption = u"Plotvue!",
            .content = {
                Box::Direction::Row,
                {{ChartBox{.name = "ChartFX1", .chart = {.design = design}}, 1}, column(std::move(side))}}};
}

} // namespace plotvue
