// Salesman by category: the sales, profit or volume of each salesman, with a series for each group.
#pragma once

#include "group/groupwindow.h"

namespace plotvue {

class frmQXM21SXC : public GroupWindow {
public:
    using GroupWindow::GroupWindow;
    Name name() const override { return "frmQXM21SXC"; }

protected:
    Declaration declare() const override;
    TextSpan identifier() const override { return u"QXM21SXC"; }
    void drawGroups(TextSpan capture) override;
};

} // namespace plotvue
