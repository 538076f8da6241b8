// limited COMMAND...: runs the command as a user who is no administrator, and ends with its exit code.
#include <array>
#include <cstdlib>
#include <string>
#include <windows.h>

namespace {

HANDLE withoutAdministrators()
{
    HANDLE own = nullptr;
    HANDLE limited = nullptr;
    std::array<BYTE, SECURITY_MAX_SID_SIZE> group{};
    DWORD size = group.size();
    SID_AND_ATTRIBUTES administrators{group.data(), 0};
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own) &&
        CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, group.data(), &size))
        CreateRestrictedToken(own, 0, 1, &administrators, 0, nullptr, 0, nullptr, &limited);
    return limited;
}

} // namespace

int main()
{
    // The first word of the command line is the path of this program, which has no blanks. The rest is
    // the command to run.
    std::wstring command = GetCommandLineW();
    command.erase(0, command.find_first_not_of(L' ', command.find(L' ')));
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    DWORD status = EXIT_FAILURE;
    if (CreateProcessAsUserW(withoutAdministrators(), nullptr, command.data(), nullptr, nullptr, FALSE, 0,
                             nullptr, nullptr, &start, &process)) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &status);
    }
    return static_cast<int>(status);
}
