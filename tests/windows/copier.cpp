// A Windows program that copies, as a terminal would.
//
// copier FILE            puts the text of FILE, in UTF-8, on the clipboard unchanged
// copier FILE SECONDS    the same, deletes FILE, and keeps the clipboard open for that time, so that no other
//                        program can read it
// copier --paste FILE    writes the text of the clipboard to FILE, in UTF-8
// copier --paste FILE FORMAT
//                        writes the bytes that the clipboard holds in the registered format FORMAT, or in
//                        CF_DIB if FORMAT is DIB, to FILE; an empty file if it holds none
// copier                 empties the clipboard
#include "capture/utf8.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <fstream>
#include <iterator>
#include <windows.h>

namespace {

bool put(const plotvue::Text& text)
{
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    auto* characters = memory ? static_cast<wchar_t*>(GlobalLock(memory)) : nullptr;
    if (!characters)
        return false;
    *std::copy(text.begin(), text.end(), characters) = L'\0';
    GlobalUnlock(memory);
    return SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
}

bool paste(const char* file)
{
    plotvue::Text text;
    if (!OpenClipboard(nullptr))
        return false;
    HANDLE held = GetClipboardData(CF_UNICODETEXT);
    if (const auto* characters = held ? static_cast<const wchar_t*>(GlobalLock(held)) : nullptr) {
        text.assign(characters, characters + std::wcslen(characters));
        GlobalUnlock(held);
    }
    CloseClipboard();
    return static_cast<bool>(std::ofstream(file, std::ios::binary) << plotvue::toUtf8(text));
}

bool pasteBytes(const char* file, std::string_view format)
{
    if (!OpenClipboard(nullptr))
        return false;
    std::ofstream out(file, std::ios::binary);
    HANDLE held = GetClipboardData(format == "DIB" ? CF_DIB : RegisterClipboardFormatA(format.data()));
    if (const auto* bytes = held ? static_cast<const char*>(GlobalLock(held)) : nullptr) {
        out.write(bytes, static_cast<std::streamsize>(GlobalSize(held)));
        GlobalUnlock(held);
    }
    CloseClipboard();
    return static_cast<bool>(out);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && std::string_view(argv[1]) == "--paste")
        return paste(argv[2]) ? EXIT_SUCCESS : EXIT_FAILURE;
    if (argc == 4 && std::string_view(argv[1]) == "--paste")
        return pasteBytes(argv[2], argv[3]) ? EXIT_SUCCESS : EXIT_FAILURE;
    // Only a program that opens the clipboard for a window can put a text there.
    HWND window = CreateWindowExA(0, "STATIC", "copier", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    if (!window || !OpenClipboard(window) || !EmptyClipboard())
        return EXIT_FAILURE;
    if (argc > 1) {
        std::ifstream file(argv[1], std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        if (!file || !put(plotvue::fromUtf8(bytes)))
            return EXIT_FAILURE;
    }
    if (argc > 2 && DeleteFileA(argv[1]))
        Sleep(static_cast<DWORD>(std::atoi(argv[2])) * 1000);
    CloseClipboard();
    return EXIT_SUCCESS;
}
