#include "group/window.h"

namespace plotvue {

Handlers GroupWindow::handlers()
{
    return {{"optSales", [this](int) { optSales_Click(); }},
            {"cmdRefresh", [this](int) { cmdRefresh_Click(); }},
            {"cmdPrint", [this](int) { cmdPrint_Click(); }},
            {"cmdExit", [this](int) { cmdExit_Click(); }}};
}

void GroupWindow::RefreshChart()
{
    const Text capture = platform().clipboardText();
    if (holds(capture, identifier()))
        drawChart(capture);
    else
        cmdExit_Click();
}

OptionFrame groupTypeFrame()
{
    return {.name = "Frame1",
            .caption = u"Data Type",
            .spokenName = u"Data Type",
            .group = "optSales",
            .options = {{0, u"Sales"}, {1, u"Profit"}, {2, u"Volume"}},
            .chosen = 0};
}

std::vector<Item> groupButtons()
{
    return {{Button{.name = "cmdPrint", .caption = u"&Print", .shortcut = u"Ctrl+P"}},
            {Button{.name = "cmdRefresh", .caption = u"&Refresh", .shortcut = u"F5"}},
            {Button{.name = "cmdExit", .caption = u"E&xit", .shortcut = u"Esc"}}};
}

} // namespace plotvue
