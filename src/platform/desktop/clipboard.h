// The clipboard's text as the host's terminal meant it.
#pragma once

#include "capture/text.h"

namespace plotvue {

// Empty when the clipboard holds no text, or when its owner does not answer within some seconds.
Text readClipboard();

// True where only the window with the focus is told what the clipboard holds.
bool clipboardNeedsFocus();
// Returns when a window of ours has the focus, after a second at most.
void waitForFocus();

// A line feed without a carriage return before it becomes the pair: many desktops and toolkits hand over bare
// line feeds. An empty line that ends with a bare line feed becomes a line of one blank: the terminal has
// left out the trailing blanks of a line that is blank on the host's screen, and the readers skip empty
// lines. Text with CR LF stays as it is.
Text mendLineEnds(TextView text);

} // namespace plotvue
