// The accessible roles of windows, notices and pictures, which the toolkit would report as plain containers.
#pragma once

namespace plotvue {

// Installs the accessibility factory for the process. It has no cost until assistive technology is used.
void offerWindowsToAssistiveTechnology();

} // namespace plotvue
