// What the two salesman/category windows have in common: they read the clipboard at every drawing, and are
// left, refreshed and printed like the history windows.
#pragma once

#include "group/reading.h"
#include "platform/form.h"

namespace plotvue {

class GroupWindow : public Form {
public:
    GroupWindow(Platform& platform, Form& startup) : Form(platform), startup_(startup) {}

protected:
    Handlers handlers() override;
    void Form_Load() override { RefreshChart(); }
    void wayOut() override { cmdExit_Click(); }

    // The clipboard holds the window's screen: draw it.
    virtual void drawChart(TextSpan capture) = 0;
    virtual TextSpan identifier() const = 0;

    int chosenType() const { return controls().options("optSales")->chosenIn(0); }

private:
    void optSales_Click() { RefreshChart(); }
    void cmdRefresh_Click() { RefreshChart(); }
    void cmdPrint_Click() { printWindow(); }
    void cmdExit_Click() { leaveFor(startup_); }
    void RefreshChart();

    Form& startup_;
};

// The data-type frame and the buttons of both windows.
OptionFrame groupTypeFrame();
std::vector<Item> groupButtons();

} // namespace plotvue
