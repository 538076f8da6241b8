#include "desktop/displaytext.h"

namespace plotvue {

QString displayText(TextSpan text)
{
    QString lines = toQString(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    lines.removeIf([](QChar c) { return c != u'\n' && c.category() == QChar::Other_Control; });
    while (lines.endsWith(u'\n'))
        lines.chop(1);
    return lines;
}

QString displayTextOnOneLine(TextSpan text)
{
    return displayText(text).replace(u'\n', u' ');
}

QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QLatin1String("&&"));
}

} // namespace plotvue
