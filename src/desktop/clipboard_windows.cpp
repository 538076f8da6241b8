#include "capture/failure.h"
#include "capture/utf8.h"
#include "desktop/chart/chartpicture.h"
#include "desktop/clipboard.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <string>
#include <vector>
#include <windows.h>

namespace plotvue {

namespace {

// Retries, because another program may have the clipboard open for a moment: the terminal that copies or a
// clipboard manager.
bool opened(HWND window)
{
    const QDeadlineTimer patience(std::chrono::seconds(1));
    while (!OpenClipboard(window)) {
        if (patience.hasExpired())
            return false;
        Sleep(10);
    }
    return true;
}

UINT ownFormat()
{
    return RegisterClipboardFormatA(screenFormat);
}

// The characters that the open clipboard holds in this format, up to the first null. Empty if it holds none.
template <typename Character>
std::basic_string<Character> held(UINT format)
{
    std::basic_string<Character> text;
    HANDLE memory = GetClipboardData(format);
    if (const auto* characters = memory ? static_cast<const Character*>(GlobalLock(memory)) : nullptr) {
        const Character* end = characters + GlobalSize(memory) / sizeof *characters;
        text.assign(characters, std::find(characters, end, Character{}));
        GlobalUnlock(memory);
    }
    return text;
}

struct Content {
    UINT format;
    std::string bytes;
};

template <typename Character>
std::string withNull(const std::basic_string<Character>& text)
{
    return {reinterpret_cast<const char*>(text.c_str()), (text.size() + 1) * sizeof(Character)};
}

bool put(const Content& content)
{
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, content.bytes.size());
    void* place = memory ? GlobalLock(memory) : nullptr;
    if (place) {
        std::memcpy(place, content.bytes.data(), content.bytes.size());
        GlobalUnlock(memory);
        if (SetClipboardData(content.format, memory))
            return true;
    }
    GlobalFree(memory);
    return false;
}

// Puts the content itself on the clipboard, not a promise as the toolkit does, so that it is still there when
// PlotVue has ended.
void replaceContent(const std::vector<Content>& contents)
{
    // Only a program that opens the clipboard for a window can change it. The content does not need the
    // window.
    HWND owner =
        CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    bool done = owner && opened(owner);
    if (done) {
        done = EmptyClipboard() && std::all_of(contents.begin(), contents.end(), put);
        CloseClipboard();
    }
    DestroyWindow(owner);
    if (!done)
        throw Failure{u"The clipboard cannot be changed, because another program is using it."};
}

} // namespace

// Uses the Windows API because the toolkit turns the line end CR CR LF into CR LF.
Text readClipboard()
{
    if (!opened(nullptr))
        return {};
    Text screen;
    if (IsClipboardFormatAvailable(ownFormat()))
        screen = fromUtf8(held<char>(ownFormat()));
    else
        screen = mendLineEnds(held<char16_t>(CF_UNICODETEXT));
    CloseClipboard();
    return screen;
}

void putOnClipboard(TextSpan text, TextSpan screen)
{
    replaceContent({{ownFormat(), withNull(toUtf8(screen))}, {CF_UNICODETEXT, withNull(Text(text))}});
}

void putOnClipboard(const QImage& picture, TextSpan screen)
{
    constexpr qsizetype fileHeader = 14; // of a BMP file; the rest of the file is a DIB
    replaceContent({{ownFormat(), withNull(toUtf8(screen))},
                    {RegisterClipboardFormatA("PNG"), encoded(picture, "PNG").toStdString()},
                    {CF_DIB, encoded(picture, "BMP").mid(fileHeader).toStdString()}});
}

bool clipboardNeedsHandover()
{
    return false;
}

} // namespace plotvue
