// The process: its working directory, its messages to the terminal and its end. Every operating system has
// its own way.
#pragma once

#include "capture/text.h"

namespace plotvue {

// To be called before any window is made. A PlotVue that was started from the menu works in a private folder
// of its own, which is removed when it ends; folders left by a crash are removed at the next start.
void enterWorkingDirectory();

// Writes the sentence to the terminal in which the program was started, if there is one.
void sayToTerminal(TextSpan sentence);

// Ends the process at once: taking the toolkit down in good order would only keep the person waiting.
[[noreturn]] void endProcess(int status);

} // namespace plotvue
