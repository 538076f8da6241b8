#include "platform/desktop/clipboard.h"

#include <QDeadlineTimer>

#include <chrono>
#include <cwchar>
#include <windows.h>

namespace plotvue {

namespace {

// Another program may have it open for a moment: the terminal that copies, or one that collects what is
// copied.
bool opened()
{
    const QDeadlineTimer patience(std::chrono::seconds(1));
    while (!OpenClipboard(nullptr)) {
        if (patience.hasExpired())
            return false;
        Sleep(10);
    }
    return true;
}

} // namespace

// The system's own text: the toolkit turns line ends of CR CR LF into CR LF.
Text readClipboard()
{
    if (!opened())
        return {};
    Text text;
    HANDLE held = GetClipboardData(CF_UNICODETEXT);
    if (const auto* characters = held ? static_cast<const wchar_t*>(GlobalLock(held)) : nullptr) {
        text.assign(characters, characters + wcsnlen(characters, GlobalSize(held) / sizeof *characters));
        GlobalUnlock(held);
    }
    CloseClipboard();
    return mendLineEnds(text);
}

} // namespace plotvue
