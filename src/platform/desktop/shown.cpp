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

QString shown(TextSpan text)
{
    QString lines = toQString(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    lines.removeIf([](QChar c) { return c != u'\n' && c.category() == QChar::Other_Control; });
    while (lines.endsWith(u'\n'))
        lines.chop(1);
    return lines;
}

QString shownOnOneLine(TextSpan text)
{
    return shown(text).replace(u'\n', u' ');
}

QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QLatin1String("&&"));
}

void keepText(QObject& widget, TextSpan text)
{
    widget.setProperty(keptAs, toQString(text));
}

Text keptText(const QObject& widget)
{
    return toText(widget.property(keptAs).toString());
}

} // namespace plotvue
