// Random sessions and the soak test. They use the working directory, which should be empty. The scripts
// `run` and `soak` start this program.
#include "sessions/process.h"
#include "sessions/walk.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>

namespace plotvue::sessions {

namespace {

namespace fs = std::filesystem;

void prepare()
{
    for (const char* name : {"recording", "desktop", "captures"})
        fs::create_directory(name);
    for (const Capture& capture : wholeCaptures())
        std::ofstream("captures/" + capture.name + ".txt", std::ios::binary) << capture.bytes;
    fs::current_path("recording");
}

std::unique_ptr<replay::Stage> desktopStage()
{
    int none = 0; // no arguments: the QApplication exists already
    return replay::desktopStage(none, nullptr);
}

// Plays the script again on the desktop platform, which must print exactly the same.
void playAgain(const std::string& printed)
{
    fs::current_path("../desktop");
    std::ostringstream again;
    {
        const auto stage = desktopStage();
        std::ifstream script("../script");
        replay::Player(*stage, again).play(script);
    }
    takeFiles(".");
    fs::current_path("../recording");
    std::ofstream("../printed", std::ios::binary) << printed;
    std::istringstream ones(printed), others(again.str());
    for (std::string one, other; std::getline(ones, one);) {
        std::getline(others, other);
        mustBeEqual("the platforms differ", one, other);
    }
    mustBeEqual("the platforms differ", printed, again.str());
}

// Returns how the session ended.
std::string session(std::uint32_t seed, std::uint32_t number, int steps, bool both)
{
    stillAlive();
    std::ofstream script("../script");
    script << "# session " << number << " of seed " << seed << std::endl;
    const auto stage = replay::recordingStage();
    Walk walk(*stage, Random(seed, number), script, {.talkative = both});
    walk.start();
    for (int i = 0; i < steps && !walk.over(); ++i)
        walk.step();
    walk.finish();
    takeFiles(".");
    if (both)
        playAgain(walk.takePrinted());
    return walk.end();
}

// Plays the sessions from `first` to `last` - 1 in memory, until one fails; plays the sessions whose number
// `every` divides also on the desktop (0: none). Prints how many sessions ended in each way.
int sessions(std::uint32_t seed, std::uint32_t first, std::uint32_t last, std::uint32_t every, int steps)
{
    std::map<std::string, int> ends;
    int status = EXIT_SUCCESS;
    for (std::uint32_t number = first; number < last && status == EXIT_SUCCESS; ++number) {
        try {
            ++ends[session(seed, number, steps, every && number % every == 0)];
        } catch (const std::exception& wrong) {
            std::cerr << wrong.what() << '\n';
            status = EXIT_FAILURE;
        }
    }
    for (const auto& [end, count] : ends)
        std::cout << count << ' ' << end << '\n';
    return status;
}

// Plays many actions in one session on the desktop, and measures how much memory and how many descriptors it
// takes in the last four fifths of them. In the first fifth, every window has been open.
int soak(std::uint32_t seed, int actions, double maxMegabytes)
{
    constexpr int parts = 10;
    const auto stage = desktopStage();
    std::ofstream script("../script");
    Walk walk(*stage, Random(seed, 0), script, {.careful = true});
    walk.start();
    walk.tour();
    std::vector<Held> tenths;
    for (int number = 1; number <= actions; ++number) {
        walk.step();
        if (walk.over()) {
            std::cerr << "The session is over after " << number << " actions: " << walk.end() << '\n';
            return EXIT_FAILURE;
        }
        if (number % std::max(actions / parts, 1) != 0)
            continue;
        walk.takePrinted();
        tenths.push_back(held());
        std::cout << number << " actions: " << tenths.back().megabytes << " MB, " << tenths.back().descriptors
                  << " descriptors" << std::endl;
    }
    if (tenths.empty())
        return EXIT_SUCCESS;
    const Held& early = tenths[(tenths.size() - 1) / 5];
    const double memory = tenths.back().megabytes - early.megabytes;
    const long descriptors = tenths.back().descriptors - early.descriptors;
    std::cout << "Memory grew by " << memory << " MB, descriptors by " << descriptors << ".\n";
    return memory > maxMegabytes || descriptors > 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}

std::uint32_t natural(const char* word)
{
    return static_cast<std::uint32_t>(std::stoul(word));
}

} // namespace

} // namespace plotvue::sessions

int main(int argc, char** argv)
{
    using namespace plotvue::sessions;
    const std::string_view what = argc > 1 ? argv[1] : "";
    const bool isSessions = what == "sessions" && argc == 7, isSoak = what == "soak" && argc == 5;
    if (!isSessions && !isSoak) {
        std::cerr
            << "usage: plotvue-sessions sessions SEED FIRST LAST EVERY STEPS | soak SEED ACTIONS MEGABYTES\n";
        return 64;
    }
    std::cout << std::fixed << std::setprecision(1);
    prepare();
    // Creates the QApplication once for all sessions, because that takes longer than a session.
    const auto application = plotvue::replay::desktopStage(argc, argv);
    if (isSoak)
        return soak(natural(argv[2]), std::stoi(argv[3]), std::stod(argv[4]));
    return sessions(natural(argv[2]), natural(argv[3]), natural(argv[4]), natural(argv[5]),
                    std::stoi(argv[6]));
}
