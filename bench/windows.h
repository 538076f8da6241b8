#pragma once

namespace plotvue {

// Needs a QApplication. Writes the files of the ranked lists to the working directory.
void measureWindows(int rounds);

} // namespace plotvue
