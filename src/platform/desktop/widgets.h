// Makes a window's widgets from its declaration. Each shows its control from then on and carries the
// control's name as its object name.
#pragma once

#include "platform/desktop/windowwidget.h"

namespace plotvue {

void buildWidgets(WindowWidget& window);

} // namespace plotvue
