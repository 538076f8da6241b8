#include "desktop/chart/chartpicture.h"
#include "desktop/clipboard.h"
#include "desktop/displaytext.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <gtest/gtest.h>

namespace plotvue {

namespace {

// Puts the texts on the clipboard, each in its format.
void offer(const std::vector<std::pair<QString, QByteArray>>& formats)
{
    auto* content = new QMimeData;
    for (const auto& [format, bytes] : formats)
        content->setData(format, bytes);
    QGuiApplication::clipboard()->setMimeData(content);
}

const QMimeData& held()
{
    return *QGuiApplication::clipboard()->mimeData();
}

TEST(Clipboard, TextIsUnchangedApartFromLineEnds)
{
    const Text raw(u"a\nb\r\nc\rd\n\n\r\r\n\0e\xD800", 16);
    QGuiApplication::clipboard()->setText(toQString(raw));
    EXPECT_EQ(readClipboard(), Text(u"a\r\nb\r\nc\rd\r\n \r\n\r\r\n\0e\xD800\r\n", 22));
}

TEST(Clipboard, AnyPlainTextIsRead)
{
    const QString text = QStringLiteral("Łódź");
    for (const char* format : {"text/plain", "text/plain;charset=utf-8", "text/plain;charset=UTF-8",
                               "text/plain; charset=\"utf8\"", "text/plain;charset=utf-8;format=flowed"}) {
        offer({{format, text.toUtf8()}});
        EXPECT_EQ(readClipboard(), u"Łódź") << format;
    }
    offer({{"text/plain;charset=utf-16le", QByteArray(reinterpret_cast<const char*>(text.utf16()), 8)}});
    EXPECT_EQ(readClipboard(), u"Łódź");
    for (const char* format :
         {"text/plain;charset=iso-8859-1", "text/plain;charset=unknown", "text/plain;x=y"}) {
        offer({{format, "caf\xE9"}});
        EXPECT_EQ(readClipboard(), u"café") << format;
    }
}

TEST(Clipboard, OtherTextsAreNoScreen)
{
    offer({{"text/plainer", "a"}, {"text/html", "b"}, {"application/json", "c"}});
    EXPECT_EQ(readClipboard(), u"");
}

TEST(Clipboard, TextInUtf8IsPreferred)
{
    offer({{"text/plain;charset=iso-8859-1", "a"}, {"text/plain", "b"}, {"text/plain;charset=utf-8", "c"}});
    EXPECT_EQ(readClipboard(), u"c");
    offer({{"text/plain;charset=iso-8859-1", "a"}, {"text/plain", "b"}});
    EXPECT_EQ(readClipboard(), u"b");
    offer({{"text/plain;charset=iso-8859-1", "a"}, {"text/plain;charset=utf-8", "c"}});
    EXPECT_EQ(readClipboard(), u"c");
}

TEST(Clipboard, TheScreenThatACopyCarriesComesFirstAndIsNotMendedAgain)
{
    offer({{"text/plain", "figures"}, {screenFormat, "a\n\nb"}});
    EXPECT_EQ(readClipboard(), u"a\n\nb");
    offer({{"text/plain", "figures"}, {screenFormat, ""}});
    EXPECT_EQ(readClipboard(), u"") << "there was none";
}

TEST(Clipboard, ACopyCarriesEveryCharacterOfTheScreen)
{
    const Text screen(u"a\0b\xD800\xDC00 \xDC00\n\uFFFD", 9);
    putOnClipboard(u"1\t2\r\n", screen);
    EXPECT_EQ(held().text(), "1\t2\r\n");
    EXPECT_EQ(readClipboard(), screen);
    putOnClipboard(QImage(2, 1, QImage::Format_RGB32), readClipboard());
    EXPECT_EQ(readClipboard(), screen);
}

TEST(Clipboard, APictureIsPutThereAsPng)
{
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixelColor(0, 0, Qt::red);
    picture.setPixelColor(1, 0, Qt::blue);
    putOnClipboard(picture, u"screen");
    EXPECT_EQ(QImage::fromData(held().data("image/png")).convertToFormat(QImage::Format_RGB32), picture);
    EXPECT_FALSE(held().hasText());
}

} // namespace

} // namespace plotvue
