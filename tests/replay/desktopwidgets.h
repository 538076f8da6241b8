// The real widgets of a form: what they show, and a person who uses them.
#pragma once

#include "platform/form.h"
#include "replay/seen.h"

namespace plotvue::replay {

// What the widgets show. Where that is what is to be shown of a control's value, it is the value itself,
// which may hold more: control characters are not drawn.
SeenWindow seenOnWidgets(const Form& form);

void pressWidget(const Form& form, Name button);
void chooseWidget(const Form& form, Name group, int index);
void clickRowOfWidget(const Form& form, Name grid, int row);
void closeWidget(const Form& form);

} // namespace plotvue::replay
