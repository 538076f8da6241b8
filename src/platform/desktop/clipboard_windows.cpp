#include "platform/desktop/clipboard.h"

#include <QDeadlineTimer>

#include <chrono>
#include <cwchar>
#include <windows.h>

namespace plotvue {

namespace {

// Retries, because another program may have the clipboard open for a moment: the terminal that copies or a
// clipboard manager.
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

// Uses the Windows API because the toolkit turns the line end CR CR LF into CR LF.
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
