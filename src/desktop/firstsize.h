// The initial size of a window: the one that it asks for, or a smaller one that fits on the screen with the
// window's frame.
#pragma once

#include <QSize>

namespace plotvue {

class WindowWidget;

// Call this before the window is shown for the first time. Before that, the desktop does not say how wide the
// window's frame will be, so the frame of another window is used, or an estimate. When the window appears, it
// is made smaller if its real frame is too wide.
void setFirstSize(WindowWidget& window, QSize wanted);

} // namespace plotvue
