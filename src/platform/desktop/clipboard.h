// The clipboard's text as the host's terminal meant it.
#pragma once

#include "capture/text.h"

namespace plotvue {

// Empty when the clipboard holds no text, or when its owner does not answer in time (seconds; see the
// system's file).
Text readClipboard();

// True where only the window with the focus is told what the clipboard holds.
bool clipboardNeedsFocus();
// Waits until one of our windows has the focus, but one second at most.
void waitForFocus();

// `text` with CR LF in place of each bare line feed. An empty line that such a line feed ends becomes a
// blank: many terminals leave out a line's trailing blanks, and the readers skip empty lines.
Text mendLineEnds(TextSpan text);

} // namespace plotvue
