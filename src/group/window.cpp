#include "group/window.h"

#include "platform/commoncontrols.h"

namespace plotvue {

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
    return dataTypeFrame({{0, u"Sales"}, {1, u"Profit"}, {2, u"Volume"}});
}

} // namespace plotvue
