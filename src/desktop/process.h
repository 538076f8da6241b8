// The process: its working directory, its messages on standard error and its end. Each operating system has
// its own implementation.
#pragma once

#include "capture/text.h"

namespace plotvue {

// Call this before any window is created. A PlotVue that was started from the menu works in a private folder,
// which is removed when it ends; folders left by a crash are removed at the next start.
void enterWorkingDirectory();

// Writes the line to standard error, as UTF-8 and with a line end. On Windows, where a program with windows
// has no terminal, it does so only if standard error leads to a file or a pipe.
void writeError(TextSpan line);

// Says the sentence without the toolkit: on standard error, and on Windows also in a box. Then it ends the
// process with status 2.
[[noreturn]] void refuse(TextSpan sentence);

// Ends the process at once, because an orderly shutdown of the toolkit would take noticeable time.
[[noreturn]] void endProcess(int status);

} // namespace plotvue
