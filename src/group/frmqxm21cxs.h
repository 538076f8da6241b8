// Category by salesman: the sales, profit or volume of each salesman in one group or in all of them, and a
// grid of the values.
#pragma once

#include "group/groupwindow.h"

namespace plotvue {

class frmQXM21CXS : public GroupWindow {
public:
    using GroupWindow::GroupWindow;
    Name name() const override { return "frmQXM21CXS"; }

protected:
    Declaration declare() const override;
    TextSpan identifier() const override { return u"QXM21CXS"; }
    void drawGroups(TextSpan capture) override;

private:
    int chosenGroup() const { return controls().options("optSales")->chosenIn(1); }
    // Gives the group options their captions and returns the name of the chosen group.
    TextSpan nameGroups(const GroupFigures& figures);
    void fillGrid(const std::vector<Text>& labels, const std::vector<double>& values, TextSpan title);
};

} // namespace plotvue
