// Text as a widget shows it. Captures are handed on as they are; only here control characters are left out.
#pragma once

#include "platform/desktop/chart/qtext.h"

namespace plotvue {

// `text` without control characters. Line ends of any kind (CR LF, CR, LF) break the line; none stays at the
// end.
QString shown(TextSpan text);
// The same on one line: its line ends are blanks.
QString shownOnOneLine(TextSpan text);
// "&" as itself where a widget would take it for a mnemonic.
QString withoutMnemonic(QString text);

} // namespace plotvue
