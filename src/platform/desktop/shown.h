// Text on its way to a widget and back. What a capture says is kept as it stands; control characters are left
// out only where it is drawn.
#pragma once

#include "platform/desktop/chart/chartfonts.h"

#include <QObject>
#include <QString>

namespace plotvue {

Text toText(const QString& text);

// `text` without control characters. Line ends of any kind (CR LF, CR, LF) break the line; none stays at the
// end.
QString shown(TextSpan text);
// The same on one line: its line ends are blanks.
QString shownOnOneLine(TextSpan text);
// "&" as itself where a widget would take it for a mnemonic.
QString withoutMnemonic(QString text);

// The whole text of a widget, beside what it draws of it.
void keepText(QObject& widget, TextSpan text);
Text keptText(const QObject& widget);

} // namespace plotvue
