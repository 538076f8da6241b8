// The name of a file for a picture of a chart.
#pragma once

#include "capture/text.h"

namespace plotvue {

// `text` as a file name without extension that every file system of Unix and Windows takes: without the
// characters that they reserve, not a device of Windows, at most 80 characters long. "PlotVue" if nothing is
// left.
Text fileName(TextSpan text);

} // namespace plotvue
