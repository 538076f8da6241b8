// Finds the fonts on threads of its own, while the program connects to the display, which takes about as
// long. The program first needs them when it builds a window.
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
