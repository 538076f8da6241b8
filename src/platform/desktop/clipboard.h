// Reads the clipboard and repairs what terminals change when they copy a screen.
#pragma once

#include "capture/text.h"

namespace plotvue {

// The clipboard's text after mendLineEnds. Empty if the clipboard holds no text or cannot be read within a
// few seconds.
Text readClipboard();

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
