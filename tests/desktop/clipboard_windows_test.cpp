#include "platform/desktop/clipboard.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <windows.h>

namespace plotvue {

namespace {

// Puts the text on the clipboard through the Windows API, because the toolkit changes line ends.
class Clipboard : public testing::Test {
protected:
    ~Clipboard() override { DestroyWindow(owner_); }

    void copy(TextSpan text)
    {
        ASSERT_TRUE(OpenClipboard(owner_));
        EmptyClipboard();
        HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
        *std::copy(text.begin(), text.end(), static_cast<wchar_t*>(GlobalLock(memory))) = L'\0';
        GlobalUnlock(memory);
        EXPECT_TRUE(SetClipboardData(CF_UNICODETEXT, memory));
        CloseClipboard();
    }

private:
    HWND owner_ = CreateWindowExA(0, "STATIC", "owner", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
};

} // namespace

TEST_F(Clipboard, TextIsUnchangedApartFromLineEnds)
{
    copy(u"a\nb\r\nc\rd\n\n\r\r\ne\xD800");
    EXPECT_EQ(readClipboard(), u"a\r\nb\r\nc\rd\r\n \r\n\r\r\ne\xD800");
}

TEST_F(Clipboard, TextEndsAtItsFirstNull)
{
    copy(TextSpan(u"a\0b", 3));
    EXPECT_EQ(readClipboard(), u"a");
}

TEST_F(Clipboard, WithoutTextIsEmpty)
{
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    CloseClipboard();
    EXPECT_EQ(readClipboard(), u"");
}

} // namespace plotvue
