#include "group/groupwindow.h"

#include "window/commoncontrols.h"

namespace plotvue {

bool GroupWindow::drawChart(const Text& capture)
{
    const bool accepted = holds(capture, identifier());
    if (accepted)
        drawGroups(capture);
    else
        refuse();
    return accepted;
}

OptionFrame groupTypeFrame()
{
    return dataTypeFrame({{0, u"Sales"}, {1, u"Profit"}, {2, u"Volume"}});
}

} // namespace plotvue
