// Plays a script from standard input and writes events and window states to standard output.
#include "replay/player.h"

#include <iostream>
#include <string_view>

int main(int argc, char** argv)
{
    using namespace plotvue::replay;
    constexpr int usage = 64;
    std::string_view platform = "recording";
    constexpr std::string_view option = "--platform=";
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument.starts_with(option))
            platform = argument.substr(option.size());
        else
            platform = {};
    }
    if (platform != "recording" && platform != "desktop") {
        std::cerr << "usage: plotvue-replay [--platform=recording|desktop] < script > events\n";
        return usage;
    }
    const auto stage = platform == "desktop" ? desktopStage(argc, argv) : recordingStage();
    try {
        Player(*stage, std::cout).play(std::cin);
    } catch (const BadLine& bad) {
        std::cout.flush();
        std::cerr << "plotvue-replay: " << bad.what() << '\n';
        return usage;
    }
    return 0;
}
