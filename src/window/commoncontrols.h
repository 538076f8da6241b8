// Controls that several windows have under the same names.
#pragma once

#include "platform/declaration.h"

namespace plotvue {

// The buttons "cmdPrint", "cmdRefresh" and "cmdExit".
Button printButton();
Button refreshButton();
Button exitButton(TextSpan caption);

// The frame of the option group "optSales". Option 0 is chosen when the window opens.
OptionFrame dataTypeFrame(std::vector<Option> options, TextSpan caption = u"Data Type");

} // namespace plotvue
