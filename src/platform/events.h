// What happens to the windows, for tests to listen to.
#pragma once

#include "capture/text.h"
#include "platform/declaration.h"

#include <functional>

namespace plotvue {

struct Event {
    enum class Kind { Load, Show, Hide, Unload, Message, Print, Spin, Error, End } kind;
    Name window{};    // of Load, Show, Hide, Unload, Print
    TextSpan title{}; // of Message; empty where the box has none
    TextSpan text{};  // of Message and Error
};

class EventSource {
public:
    std::function<void(const Event&)> listener = [](const Event&) {
    }; // hears them in the order in which they happen

    void tell(const Event& event) const { listener(event); }
};

} // namespace plotvue
