// What each system has to do about the process: where it works, where it is heard, how it ends.
#pragma once

#include "capture/text.h"

namespace plotvue {

// Before the windows come. A PlotVue that was started from the menu works in a private folder of its own,
// which goes when it ends; what a crash has left is swept.
void enterWorkingDirectory();

// Says the sentence where the program was started, if something there can listen.
void sayToTerminal(TextSpan sentence);

// At once: taking the toolkit down in good order would only keep the person waiting.
[[noreturn]] void endProcess(int status);

} // namespace plotvue
