#include "sessions/process.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace plotvue::sessions {

void stillAlive()
{
    constexpr unsigned patience = 100; // seconds, after which the alarm signal ends the process
    alarm(patience);
}

Held held()
{
    namespace fs = std::filesystem;
    std::ifstream status("/proc/self/status");
    std::string word;
    double kilobytes = 0;
    while (status >> word && word != "VmRSS:") {
    }
    status >> kilobytes;
    return {kilobytes / 1024,
            std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator())};
}

std::string asClipboardHolds(std::string text)
{
    return text;
}

} // namespace plotvue::sessions
