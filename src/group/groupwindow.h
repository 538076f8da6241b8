// What the two salesman/category windows have in common.
#pragma once

#include "group/groupreader.h"
#include "window/screenwindow.h"

namespace plotvue {

class GroupWindow : public ScreenWindow {
public:
    using ScreenWindow::ScreenWindow;

protected:
    bool drawChart(const Text& capture) override;

    virtual TextSpan identifier() const = 0;

    // Draws a capture that holds the identifier.
    virtual void drawGroups(TextSpan capture) = 0;

    int chosenType() const { return controls().options("optSales")->chosenIn(0); }
};

OptionFrame groupTypeFrame();

} // namespace plotvue
