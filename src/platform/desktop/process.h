// The process: its working directory, its messages to the terminal and its end. Each operating system has its
// own implementation.
#pragma once

#include "capture/text.h"

namespace plotvue {

// Call this before any window is created. A PlotVue that was started from the menu works in a private folder,
// which is removed when it ends; folders left by a crash are removed at the next start.
void enterWorkingDirectory();

// Writes the sentence to the terminal in which the program was started, if there is one.
void sayToTerminal(TextSpan sentence);

// Ends the process at once, because an orderly shutdown of the toolkit would take noticeable time.
[[noreturn]] void endProcess(int status);

} // namespace plotvue
