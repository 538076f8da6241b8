// What is in a PDF document that the toolkit has written.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRegularExpression>

namespace plotvue::test {

// The objects of a PDF document, with the content of the streams that are compressed.
inline QList<QByteArray> objectsOf(const QByteArray& pdf)
{
    QList<QByteArray> objects;
    for (qsizetype at = pdf.indexOf(" 0 obj"); at >= 0; at = pdf.indexOf(" 0 obj", at + 1)) {
        QByteArray object = pdf.mid(at, pdf.indexOf("endobj", at) - at);
        const qsizetype stream = object.indexOf("stream\n") + 7;
        if (object.contains("/FlateDecode") && stream > 7) {
            const QByteArray size("\0\0\1\0", 4); // only a first guess for qUncompress()
            object = object.left(stream) + qUncompress(size + object.mid(stream));
        }
        objects += object;
    }
    return objects;
}

inline bool isImage(const QByteArray& object)
{
    static const QRegularExpression type(QStringLiteral("/Subtype\\s*/Image"));
    static const QRegularExpression inLine(QStringLiteral("\\bBI\\s[^\\0]*\\sID\\s"));
    const QString text = QString::fromLatin1(object);
    return text.contains(type) || (!text.contains(QLatin1String("/Length1")) && text.contains(inLine));
}

// In pixels; 0 if the object is no image.
inline int imageHeight(const QByteArray& object)
{
    static const QRegularExpression height(QStringLiteral("/Height (\\d+)"));
    return isImage(object) ? height.match(QString::fromLatin1(object)).captured(1).toInt() : 0;
}

} // namespace plotvue::test
