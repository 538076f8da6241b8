#include "window/screenwindow.h"

#include "window/commoncontrols.h"

namespace plotvue {

Handlers ScreenWindow::handlers()
{
    return {{"opt12", [this](int) { opt12_Click(); }},
            {"optSales", [this](int) { optSales_Click(); }},
            {"cmdRefresh", [this](int) { cmdRefresh_Click(); }},
            {"cmdPrint", [this](int) { cmdPrint_Click(); }},
            {"cmdExit", [this](int) { cmdExit_Click(); }}};
}

void ScreenWindow::RefreshChart()
{
    const Text capture = platform().clipboardText();
    if (!drawChart(capture))
        return;
    drawn_ = {capture, controls().chosenOptions()};
    setNotice({});
}

void ScreenWindow::refuse()
{
    // Kept: a click that leaves the window (docs/kept.md).
    const bool clicked = visible(); // false while the window loads
    cmdExit_Click();
    if (clicked)
        home_.setNotice(u"The clipboard holds another text now. Press Refresh to chart it.");
}

// Kept: a loaded window keeps its chart (docs/kept.md).
void ScreenWindow::shownAgain()
{
    if (!drawn_)
        setNotice(u"Nothing is charted yet. Press Refresh to chart the copied screen.");
    else if (drawn_->capture != platform().clipboardText())
        setNotice(u"This chart is of an earlier copy. Press Refresh to chart the copied screen.");
    else if (drawn_->options != controls().chosenOptions())
        setNotice(u"This chart does not show the chosen options. Press Refresh to chart the copied screen.");
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
