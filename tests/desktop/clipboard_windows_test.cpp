#include "capture/failure.h"
#include "desktop/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>
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

    static QByteArray bytes(UINT format)
    {
        QByteArray held;
        EXPECT_TRUE(OpenClipboard(nullptr));
        HANDLE memory = GetClipboardData(format);
        if (const auto* content = memory ? static_cast<const char*>(GlobalLock(memory)) : nullptr) {
            held = QByteArray(content, static_cast<qsizetype>(GlobalSize(memory)));
            GlobalUnlock(memory);
        }
        CloseClipboard();
        return held;
    }

    HWND owner_ = CreateWindowExA(0, "STATIC", "owner", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(Clipboard, TextIsUnchangedApartFromLineEnds)
{
    copy(u"a\nb\r\nc\rd\n\n\r\r\ne\xD800");
    EXPECT_EQ(readClipboard(), u"a\r\nb\r\nc\rd\r\n \r\n\r\r\ne\xD800\r\n");
}

TEST_F(Clipboard, TextEndsAtItsFirstNull)
{
    copy(TextSpan(u"a\0b", 3));
    EXPECT_EQ(readClipboard(), u"a");
}

TEST_F(Clipboard, TheScreenThatACopyCarriesComesFirstAndIsNotMendedAgain)
{
    putOnClipboard(u"1\t2\r\n", u"a\n\nb\xD800");
    EXPECT_EQ(readClipboard(), u"a\n\nb\xD800");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1\t2\n") << "as the toolkit reads line ends";
    putOnClipboard(u"1\t2\r\n", u"");
    EXPECT_EQ(readClipboard(), u"") << "there was none";
    copy(u"another");
    EXPECT_EQ(readClipboard(), u"another");
}

TEST_F(Clipboard, APictureIsPutThereAsPngAndAsDib)
{
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixelColor(0, 0, QColor(1, 2, 3));
    picture.setPixelColor(1, 0, QColor(4, 5, 6));
    putOnClipboard(picture, u"screen");
    EXPECT_EQ(readClipboard(), u"screen");
    const QByteArray png = bytes(RegisterClipboardFormatA("PNG")), dib = bytes(CF_DIB);
    EXPECT_EQ(QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32), picture);
    EXPECT_EQ(dib.size(), 40 + 8); // the header, and a row of two pixels as blue, green and red
    EXPECT_EQ(dib.mid(40, 6), QByteArray("\3\2\1\6\5\4"));
}

TEST_F(Clipboard, ThatIsBusyForAMomentIsReadThen)
{
    copy(u"text");
    ASSERT_TRUE(OpenClipboard(owner_)); // for a window, or another thread can open it as well
    Text text;
    std::thread reader([&text] { text = readClipboard(); });
    Sleep(200); // meanwhile it is tried in vain
    CloseClipboard();
    reader.join();
    EXPECT_EQ(text, u"text");
}

TEST_F(Clipboard, ThatStaysBusyIsTold)
{
    ASSERT_TRUE(OpenClipboard(nullptr));
    bool told = false;
    std::thread([&told] {
        try {
            putOnClipboard(u"text", u"screen");
        } catch (const Failure& failure) {
            told = failure.sentence.starts_with(u"The clipboard cannot be changed");
        }
    }).join();
    CloseClipboard();
    EXPECT_TRUE(told);
}

TEST_F(Clipboard, WithoutTextIsEmpty)
{
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    CloseClipboard();
    EXPECT_EQ(readClipboard(), u"");
}

} // namespace

} // namespace plotvue
