// What assistive technology is told about windows and pictures, which the toolkit takes for mere containers.
#pragma once

namespace plotvue {

// Installs it for the whole process; costs nothing until assistive technology is in use.
void offerWindowsToAssistiveTechnology();

} // namespace plotvue
