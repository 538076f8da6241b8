// What assistive technology is told of the widgets that the toolkit takes for mere containers.
#pragma once

namespace plotvue {

// Once for all windows and pictures; costs nothing until someone listens.
void offerWindowsToAssistiveTechnology();

} // namespace plotvue
