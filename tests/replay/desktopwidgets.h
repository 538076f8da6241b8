// Reads and operates the widgets of a form.
#pragma once

#include "platform/form.h"
#include "replay/seen.h"

namespace plotvue::replay {

// What the widgets display. If a widget displays the value of its control correctly, the value itself is
// returned, because it may hold control characters that are not displayed.
SeenWindow seenOnWidgets(const Form& form);

void pressWidget(const Form& form, Name button);
void chooseWidget(const Form& form, Name group, int index);
void clickRowOfWidget(const Form& form, Name grid, int row);
void closeWidget(const Form& form);
void copyFromWidget(const Form& form, Name chartOrGrid);

} // namespace plotvue::replay
