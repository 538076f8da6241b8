// What the tests of the past-due, vendor and ratio analyses share.
#pragma once

#include "support/capturebuilder.h"
#include "support/session.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace plotvue::test {

using Events = std::vector<std::string>;
using Texts = std::vector<Text>;
using Numbers = std::vector<double>;
using Lines = std::vector<TextSpan>;

// Month labels as the vendor and the ratio screens have them.
inline constexpr TextSpan thirteenMonths =
    u"Mlabel OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98";

// A capture of just these lines.
inline Text hostScreen(const Lines& lines)
{
    Text capture;
    for (const TextSpan line : lines)
        capture += Text(line) + u"\r\n";
    return capture;
}

// What happens when the program starts with a capture that its list window accepts.
inline Events listOpens(const std::string& window)
{
    return {"load startup", "show startup", "hide startup", "load " + window, "show " + window};
}

inline Events listRefuses(const std::string& window)
{
    return {"load startup", "show startup", "hide startup", "load " + window, "show startup"};
}

inline Events endOfList(const std::string& drillDown)
{
    return {"message : End of list", "hide " + drillDown, "unload " + drillDown};
}

// Whether the last event is a run-time error, said in one sentence, and the process is over.
inline testing::AssertionResult failed(Session& session, std::string_view words)
{
    const Events events = session.events();
    if (events.empty() || !events.back().starts_with("error "))
        return testing::AssertionFailure() << "no run-time error";
    const std::string& said = events.back();
    if (said.find(words) == std::string::npos || !said.ends_with('.'))
        return testing::AssertionFailure() << said;
    return session.platform.over() ? testing::AssertionSuccess()
                                   : testing::AssertionFailure() << "the process goes on";
}

// Nobody can write or read a file where a directory stands.
inline void blockFile(const char* file)
{
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
}

inline bool isShown(Session& session, Name window)
{
    return session.loaded(window) && session.visible(window);
}

} // namespace plotvue::test
