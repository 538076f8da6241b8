// What the tests of windows of every kind ask.
#pragma once

#include "capture/utf8.h"
#include "support/session.h"

#include <gtest/gtest.h>

namespace plotvue::test {

// Of the options, in their order on the window.
inline Texts captions(const auto& options)
{
    Texts result;
    for (const auto& option : options.options)
        result.push_back(option.caption);
    return result;
}

// Whether the last event is a run-time error, said in a sentence.
inline bool endsInAnError(Session& session)
{
    const Events events = session.events();
    return !events.empty() && events.back().starts_with("error ") && events.back().ends_with(".");
}

} // namespace plotvue::test
