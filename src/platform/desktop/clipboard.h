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

// A line feed without a carriage return before it becomes a pair: desktops and toolkits hand bare ones over.
Text withCarriageReturns(TextView text);

} // namespace plotvue
