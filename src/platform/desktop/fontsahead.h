// Finds the fonts on threads beside the program's own, which first needs them when it builds a window. They
// take about as long as connecting to the display.
#pragma once

#include <future>

namespace plotvue {

class FontsAhead {
public:
    FontsAhead(); // reads the configuration; no QApplication need exist

    // The toolkit's own list, made from it; a QApplication must exist.
    void list();

private:
    std::future<int> configured_;
    std::future<void> listed_;
};

} // namespace plotvue
