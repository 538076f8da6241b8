#include "window/commoncontrols.h"

namespace plotvue {

Button printButton()
{
    return {.name = "cmdPrint", .caption = u"&Print", .shortcut = u"Ctrl+P"};
}

Button refreshButton()
{
    return {.name = "cmdRefresh", .caption = u"&Refresh", .shortcut = u"F5"};
}

Button exitButton(TextSpan caption)
{
    return {.name = "cmdExit", .caption = caption, .shortcut = u"Esc"};
}

OptionFrame dataTypeFrame(std::vector<Option> options, TextSpan caption)
{
    return {.name = "Frame1",
            .caption = caption,
            .spokenName = u"Data Type",
            .group = "optSales",
            .options = std::move(options),
            .chosen = 0};
}

} // namespace plotvue
