// Text on its way to a widget and back. What a capture says is kept as it stands; control characters are left
// out only where it is drawn.
#pragma once

#include "platform/desktop/chart/chart_fonts.h"

#include <QObject>
#include <QString>

namespace plotvue {

Text toText(const QString& text);

// `text` without its control characters, but for line feeds: lines stay lines.
QString shown(TextView text);
// On one line: line ends become blanks, none at the end.
QString shownOnOneLine(TextView text);
// "&" as itself where a widget would take it for a mnemonic.
QString withoutMnemonic(QString text);

// The whole text of a widget, beside what it draws of it.
void keepText(QObject& widget, TextView text);
Text keptText(const QObject& widget);

} // namespace plotvue
