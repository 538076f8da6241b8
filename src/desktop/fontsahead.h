// Loads the fonts in background threads while the process connects to the display. Both take about as long,
// and fonts are not needed before a window is built.
#pragma once

#include <future>

namespace plotvue {

class FontsAhead {
public:
    FontsAhead(); // starts to read the font configuration; needs no QApplication

    // Starts to build the toolkit's font list from the configuration. A QApplication must exist.
    void list();

private:
    std::future<int> configured_;
    std::future<void> listed_;
};

} // namespace plotvue
