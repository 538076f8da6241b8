// The initial size of a window: the one that it asks for, or what fits on the screen with the frame around
// it.
#pragma once

#include <QSize>

namespace plotvue {

class WindowWidget;

// Call this before the window is shown for the first time. The desktop says how wide its frames are only when
// it shows a window: until then another window's frame counts, or an estimate, which the window corrects when
// it appears.
void setFirstSize(WindowWidget& window, QSize wanted);

} // namespace plotvue
