// Functions for the process that plays the sessions, one implementation per operating system.
#pragma once

#include <string>

namespace plotvue::sessions {

// Must be called at intervals: the process ends if it is not called for 100 seconds.
void stillAlive();

struct Held {
    double megabytes;
    long descriptors;
};

Held held();

// The text, up to the first character that this system's clipboard cannot hold.
std::string asClipboardHolds(std::string text);

} // namespace plotvue::sessions
