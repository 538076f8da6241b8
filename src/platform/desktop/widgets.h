// Makes a window's widgets from its declaration. From then on each shows its control. Its object name is the
// control's name.
#pragma once

#include "platform/desktop/windowwidget.h"

namespace plotvue {

void buildWidgets(WindowWidget& window);

} // namespace plotvue
