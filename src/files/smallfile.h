// A small file in the working directory: written and read whole, readable by its owner only.
#pragma once

#include "capture/text.h"

namespace plotvue {

// Creates or truncates the file. Throws Failure when it cannot be written.
void writeSmallFile(const char* file, const std::string& bytes);

// Throws Failure when the file cannot be opened or read.
std::string readSmallFile(const char* file);

// Throws Failure. `what` says what failed, "cannot be opened"; `reason` is the operating system's.
[[noreturn]] void failForFile(const char* file, TextSpan what, TextSpan reason);

} // namespace plotvue
