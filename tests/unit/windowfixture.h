// What the tests of all windows share.
#pragma once

#include "capture/utf8.h"
#include "support/session.h"

#include <gtest/gtest.h>

namespace plotvue::test {

// The captions of the options, from top to bottom.
inline Texts captions(const auto& options)
{
    Texts result;
    for (const auto& option : options.options)
        result.push_back(option.caption);
    return result;
}

// Whether the last event is a run-time error that is reported in a sentence.
inline bool endsInAnError(Session& session)
{
    const Events events = session.events();
    return !events.empty() && events.back().starts_with("error ") && events.back().ends_with(".");
}

} // namespace plotvue::test
