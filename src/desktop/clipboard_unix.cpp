#include "capture/utf8.h"
#include "desktop/chart/chartpicture.h"
#include "desktop/clipboard.h"
#include "desktop/displaytext.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringDecoder>

#include <algorithm>

namespace plotvue {

namespace {

const QLatin1String plainText("text/plain");

QByteArray charsetOf(const QString& format)
{
    return format.section(QLatin1String("charset="), 1).section(u';', 0, 0).remove(u'"').trimmed().toLatin1();
}

bool isUtf8(const QString& format)
{
    return QStringConverter::encodingForName(charsetOf(format)) == QStringConverter::Utf8;
}

// The plain-text format to ask for: one in UTF-8 if possible. Empty if none is offered.
QString plainTextFormat(QStringList offered)
{
    offered.removeIf([](const QString& format) {
        return format != plainText && !format.startsWith(QLatin1String("text/plain;"));
    });
    const auto utf8 = std::find_if(offered.cbegin(), offered.cend(), isUtf8);
    if (utf8 != offered.cend())
        return *utf8;
    return offered.contains(plainText) ? plainText : offered.value(0);
}

QString textIn(const QMimeData& held, const QString& format)
{
    if (format == plainText)
        return held.text(); // the toolkit decodes it: the type of the text is not in its name
    QStringDecoder decode(charsetOf(format));
    const QByteArray bytes = held.data(format);
    return decode.isValid() ? QString(decode(bytes)) : QString::fromLatin1(bytes);
}

void put(std::unique_ptr<QMimeData> content, TextSpan screen)
{
    content->setData(QLatin1String(screenFormat), QByteArray::fromStdString(toUtf8(screen)));
    QGuiApplication::clipboard()->setMimeData(content.release());
}

} // namespace

Text readClipboard()
{
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    // If the clipboard's owner hangs, each request waits for the toolkit's timeout. The list of formats is
    // one request, which is empty then; asking the toolkit whether there is a certain format would be one,
    // too.
    const QStringList offered = held ? held->formats() : QStringList();
    if (offered.contains(QLatin1String(screenFormat)))
        return fromUtf8(held->data(QLatin1String(screenFormat)).toStdString());
    const QString format = plainTextFormat(offered);
    return format.isEmpty() ? Text() : mendLineEnds(toText(textIn(*held, format)));
}

void putOnClipboard(TextSpan text, TextSpan screen)
{
    auto content = std::make_unique<QMimeData>();
    content->setText(toQString(text));
    put(std::move(content), screen);
}

void putOnClipboard(const QImage& picture, TextSpan screen)
{
    auto content = std::make_unique<QMimeData>();
    content->setData(QStringLiteral("image/png"), encoded(picture, "PNG"));
    put(std::move(content), screen);
}

bool clipboardNeedsHandover()
{
    // On Wayland, clipboard managers take what is copied at once.
    return QGuiApplication::platformName() == QLatin1String("xcb") &&
           QGuiApplication::clipboard()->ownsClipboard();
}

} // namespace plotvue
