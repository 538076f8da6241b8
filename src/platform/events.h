// Events for tests to observe: windows, message boxes, prints, copies and the end of the process.
#pragma once

#include "capture/text.h"
#include "platform/declaration.h"

#include <functional>

namespace plotvue {

struct Event {
    enum class Kind { Load, Show, Hide, Unload, Message, Print, Copy, Wait, Error, End } kind;
    Name window{};    // of Load, Show, Hide, Unload, Print
    TextSpan title{}; // of Message; empty if the box has no title
    TextSpan text{};  // of Message, Copy and Error
};

class EventSource {
public:
    std::function<void(const Event&)> listener = [](const Event&) {}; // called for each event, in order

    void tell(const Event& event) const { listener(event); }
};

} // namespace plotvue
