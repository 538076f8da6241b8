#include "platform/screenwindow.h"

#include "platform/commoncontrols.h"

namespace plotvue {

Handlers ScreenWindow::handlers()
{
    return {{"opt12", [this](int) { opt12_Click(); }},
            {"optSales", [this](int) { optSales_Click(); }},
            {"cmdRefresh", [this](int) { cmdRefresh_Click(); }},
            {"cmdPrint", [this](int) { cmdPrint_Click(); }},
            {"cmdExit", [this](int) { cmdExit_Click(); }}};
}

Declaration declareScreenWindow(Name name, TextSpan caption, std::vector<Item> content,
                                std::vector<OptionFrame> frames)
{
    std::vector<Item> side;
    for (OptionFrame& frame : frames)
        side.push_back({std::move(frame)});
    side.push_back({Space{}, 1});
    side.push_back({printButton()});
    side.push_back({refreshButton()});
    side.push_back({exitButton(u"E&xit")});
    content.push_back(column(std::move(side)));
    return {.name = name, .caption = caption, .content = {Panel::Direction::Row, std::move(content)}};
}

} // namespace plotvue
