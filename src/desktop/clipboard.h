// Reads the screen on the clipboard, repairs what terminals change when they copy it, and puts texts and
// pictures there without losing it.
#pragma once

#include "capture/text.h"

class QImage;

namespace plotvue {

// What PlotVue copies carries the captured screen in this format, as UTF-8.
inline constexpr char screenFormat[] = "application/x-plotvue-screen";

// The captured screen: the one that a copy of PlotVue carries, else the clipboard's text after mendLineEnds.
// Empty if the clipboard holds no text or cannot be read within a few seconds.
Text readClipboard();

// Both replace the content of the clipboard; readClipboard() returns `screen` from then on. They throw
// Failure if the clipboard cannot be changed.
void putOnClipboard(TextSpan text, TextSpan screen);
void putOnClipboard(const QImage& picture, TextSpan screen);

// Whether what PlotVue has put on the clipboard goes with the process, unless the toolkit hands it over to a
// clipboard manager when it shuts down.
bool clipboardNeedsHandover();

// True if the display server gives the clipboard's content only to the focused window.
bool clipboardNeedsFocus();
// Waits until a window of this process has the focus, but at most one second.
void waitForFocus();

// Replaces each bare line feed with CR LF. An empty line that ends in a bare line feed becomes one blank:
// many terminals drop trailing blanks when they copy, and the code that reads screens skips empty lines.
// If the text has a bare line feed and its last line has no end, CR LF is added: most such terminals copy no
// end of the last line, and lists are read up to their last carriage return.
Text mendLineEnds(TextSpan text);

} // namespace plotvue
