#include "platform/desktop/shown.h"

#include <QVariant>

namespace plotvue {

namespace {

constexpr const char* keptAs = "plotvueText";

} // namespace

Text toText(const QString& text)
{
    return Text(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
}

QString shown(TextView text)
{
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char16_t character : text)
        if (character == u'\n' || QChar(character).category() != QChar::Other_Control)
            result += QChar(character);
    return result;
}

QString shownOnOneLine(TextView text)
{
    QString result = shown(text);
    while (result.endsWith(u'\n'))
        result.chop(1);
    return result.replace(u'\n', u' ');
}

QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QLatin1String("&&"));
}

void keepText(QObject& widget, TextView text)
{
    widget.setProperty(keptAs, toQString(text));
}

Text keptText(const QObject& widget)
{
    return toText(widget.property(keptAs).toString());
}

} // namespace plotvue
