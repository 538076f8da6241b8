// Reads and operates the widgets of a form.
#pragma once

#include "replay/seen.h"
#include "window/window.h"

namespace plotvue::replay {

// What the widgets display. If a widget displays the value of its control correctly, the value itself is
// returned, because it may hold control characters that are not displayed.
SeenWindow seenOnWidgets(const Window& form);

void pressWidget(const Window& form, Name button);
void chooseWidget(const Window& form, Name group, int index);
void clickRowOfWidget(const Window& form, Name grid, int row);
void closeWidget(const Window& form);
void copyFromWidget(const Window& form, Name chartOrGrid);

} // namespace plotvue::replay
