#include "capture/utf8.h"
#include "desktop/process.h"

#include <cstdlib>
#include <filesystem>
#include <windows.h>

namespace plotvue {

namespace {

namespace fs = std::filesystem;

// The private folder of one process. A lock file beside it is open exclusively until the process ends; then
// Windows deletes the file. Only the process that holds the lock may use or remove the folder.
struct Folder {
    fs::path path;
    HANDLE lock = INVALID_HANDLE_VALUE;

    bool take()
    {
        lock = CreateFileW((path.wstring() + L".mark").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                           FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        return lock != INVALID_HANDLE_VALUE;
    }

    void sweep()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
        CloseHandle(lock);
    }
};

Folder own; // if the path is empty, the process works where it was started

fs::path programFolder()
{
    std::wstring name(MAX_PATH, L'\0');
    for (DWORD length;
         (length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()))) == name.size();)
        name.resize(2 * name.size());
    return fs::path(name.c_str()).parent_path();
}

// Whether the process was started in the installation folder. The menu entry does that; nobody else has a
// reason to.
bool startedFromMenu()
{
    std::error_code none;
    const fs::path folder = programFolder();
    return fs::exists(folder / "uninstall.exe", none) && fs::equivalent(folder, fs::current_path(none), none);
}

void sweepFolders(const fs::path& all)
{
    std::error_code none, failed; // increment() returns an error; ++ would throw it
    for (fs::directory_iterator at(all, failed), end; !failed && at != end; at.increment(failed))
        if (Folder left{at->path()}; at->is_directory(none) && left.take())
            left.sweep();
}

} // namespace

void enterWorkingDirectory()
{
    const wchar_t* local = _wgetenv(L"LOCALAPPDATA");
    if (!local || !startedFromMenu())
        return;
    const fs::path all = fs::path(local) / "PlotVue";
    constexpr int maxFolders = 1000;
    std::error_code error;
    fs::create_directories(all, error);
    sweepFolders(all);
    for (int number = 1; number <= maxFolders && own.path.empty(); ++number) {
        Folder folder{all / std::to_wstring(number)};
        if (!folder.take())
            continue;
        fs::create_directory(folder.path, error);
        fs::current_path(folder.path, error);
        if (!error)
            own = folder;
        else
            folder.sweep();
    }
}

void writeError(TextSpan line)
{
    HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
    const DWORD kind = GetFileType(error);
    if (kind != FILE_TYPE_DISK && kind != FILE_TYPE_PIPE)
        return;
    std::string bytes = toUtf8(line) + "\r\n";
    DWORD written = 0;
    while (!bytes.empty() &&
           WriteFile(error, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && written > 0)
        bytes.erase(0, written);
}

void refuse(TextSpan sentence)
{
    writeError(sentence);
    MessageBoxW(nullptr, std::wstring(sentence.begin(), sentence.end()).c_str(), L"PlotVue", MB_ICONERROR);
    endProcess(2);
}

void endProcess(int status)
{
    if (!own.path.empty()) {
        std::error_code ignored;
        const fs::path all = own.path.parent_path();
        fs::current_path(all.parent_path(), ignored); // Windows cannot remove a working directory
        own.sweep();
        fs::remove(all, ignored); // fails if another process works there
    }
    std::_Exit(status);
}

} // namespace plotvue
