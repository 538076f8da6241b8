// Creates a window's widgets from its declaration and arranges them. The object name of a widget is the name
// of its control.
#pragma once

#include "desktop/windowwidget.h"

namespace plotvue {

class Menus;

// `menus` must outlive the window.
void buildWidgets(WindowWidget& window, Menus& menus);

} // namespace plotvue
