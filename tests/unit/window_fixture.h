// What the tests of windows of every kind ask.
#pragma once

#include "capture/utf8.h"
#include "support/session.h"

#include <gtest/gtest.h>

namespace plotvue::test {

using Events = std::vector<std::string>;
using Numbers = std::vector<double>;
using Texts = std::vector<Text>;

// What happens when the program starts with a capture that opens the window.
inline Events opening(Name window)
{
    const std::string name(window);
    return {"load startup", "show startup", "hide startup", "load " + name, "show " + name};
}

inline Texts controlsOf(Session& session, Name window)
{
    Texts names;
    for (const std::string& name : session.controlNames(window))
        names.push_back(fromUtf8(name));
    return names;
}

// Of the options, as they stand on the window.
inline Texts captions(const OptionGroup& options)
{
    Texts result;
    for (const OptionGroup::Entry& option : options.options)
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
