// What every supported screen must have.
#include "app/recognition.h"
#include "app/screens.h"
#include "capture/utf8.h"
#include "support/capturebuilder.h"
#include "support/session.h"
#include "support/windows.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

namespace plotvue::test {
namespace {

const std::filesystem::path samples = PLOTVUE_SAMPLES;

std::map<const Screen*, std::vector<std::string>> samplesOfScreens()
{
    std::map<const Screen*, std::vector<std::string>> result;
    for (const auto& entry : std::filesystem::directory_iterator(samples)) {
        const std::string name = entry.path().stem().string();
        result[recognise(sample(name))].push_back(name);
    }
    return result;
}

std::string nameOf(const Screen& screen)
{
    return toUtf8(screen.marker);
}

TEST(Screens, HaveOneSampleEach)
{
    auto found = samplesOfScreens();
    for (const Screen& screen : screens)
        EXPECT_EQ(found[&screen].size(), 1u) << nameOf(screen);
    EXPECT_TRUE(found[nullptr].empty()) << found[nullptr].front();
}

TEST(Screens, AreOpenedByTheirSamples)
{
    for (const auto& [screen, names] : samplesOfScreens())
        for (const std::string& name : names) {
            Session session;
            session.start(sample(name));
            EXPECT_TRUE(screen && test::windowOf(session.app, *screen).visible()) << name;
            EXPECT_FALSE(session.platform.over()) << name;
        }
}

TEST(Screens, RequireTheirOwnMarkers)
{
    for (const Screen& screen : screens) {
        const auto* monthly = std::get_if<const MonthlyScreen*>(&screen.window);
        EXPECT_TRUE(!monthly || (*monthly)->words.back().word == screen.marker) << nameOf(screen);
    }
}

// All words of the unit tests, without startup_test.cpp, which lists every screen.
std::set<std::string> wordsInTests()
{
    std::set<std::string> words;
    for (const auto& entry : std::filesystem::directory_iterator(samples.parent_path() / "tests/unit")) {
        if (entry.path().filename() == "startup_test.cpp")
            continue;
        std::ifstream file(entry.path());
        std::string text{std::istreambuf_iterator(file), {}};
        std::replace_if(
            text.begin(), text.end(), [](unsigned char c) { return !std::isalnum(c); }, ' ');
        std::istringstream split(text);
        words.insert(std::istream_iterator<std::string>(split), {});
    }
    return words;
}

TEST(Screens, HaveATestEach)
{
    const std::set<std::string> words = wordsInTests();
    Session session;
    for (const Screen& screen : screens)
        EXPECT_TRUE(words.contains(std::string(test::windowOf(session.app, screen).name())))
            << nameOf(screen);
}

} // namespace
} // namespace plotvue::test
