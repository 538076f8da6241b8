// Reads and operates the widgets of a window.
#pragma once

#include "replay/seen.h"
#include "window/window.h"

namespace plotvue::replay {

// What the widgets display. If a widget displays the value of its control correctly, the value itself is
// returned, because it may hold control characters that are not displayed.
SeenWindow seenOnWidgets(const Window& window);

void pressWidget(const Window& window, Name button);
void chooseWidget(const Window& window, Name group, int index);
void clickRowOfWidget(const Window& window, Name grid, int row);
void closeWidget(const Window& window);
void copyFromWidget(const Window& window, Name chartOrGrid);

} // namespace plotvue::replay
