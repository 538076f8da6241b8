// Creates a window's widgets from its declaration. Each widget displays its control from then on, and its
// object name is the control's name.
#pragma once

#include "desktop/windowwidget.h"

namespace plotvue {

class Menus;

// `menus` must outlive the window.
void buildWidgets(WindowWidget& window, Menus& menus);

} // namespace plotvue
