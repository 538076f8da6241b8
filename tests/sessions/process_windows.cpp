#include "sessions/process.h"

#include <iostream>
// clang-format off
#include <windows.h>
#include <psapi.h> // requires windows.h
// clang-format on

namespace plotvue::sessions {

namespace {

void CALLBACK end(void*, BOOLEAN)
{
    std::cerr << "it does not come to an end" << std::endl;
    TerminateProcess(GetCurrentProcess(), 1);
}

} // namespace

void stillAlive()
{
    constexpr DWORD patience = 100'000; // milliseconds
    static HANDLE timer = nullptr;
    if (timer)
        static_cast<void>(DeleteTimerQueueTimer(nullptr, timer, nullptr));
    CreateTimerQueueTimer(&timer, nullptr, end, nullptr, patience, 0, WT_EXECUTEONLYONCE);
}

Held held()
{
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return {static_cast<double>(memory.WorkingSetSize) / (1024 * 1024), static_cast<long>(handles)};
}

std::string asClipboardHolds(std::string text)
{
    return text.substr(0, text.find('\0')); // Windows ends the text at a null character
}

} // namespace plotvue::sessions
