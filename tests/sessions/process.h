// What the sessions ask of the process that plays them.
#pragma once

#include <string>

namespace plotvue::sessions {

// Ends the process when it is not called again within some time.
void stillAlive();

struct Held {
    double megabytes;
    long descriptors;
};

Held held();

// The text as the clipboard of this system can hold it.
std::string asClipboardHolds(std::string text);

} // namespace plotvue::sessions
