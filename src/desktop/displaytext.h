// Converts text for display in widgets. Control characters from captures are kept everywhere else and removed
// only here.
#pragma once

#include "desktop/chart/qtext.h"

namespace plotvue {

// `text` without control characters and trailing line ends. Every line end (CR LF, CR, LF) becomes LF.
QString displayText(TextSpan text);
// The same on one line, with blanks in place of line ends.
QString displayTextOnOneLine(TextSpan text);
// Escapes "&", which a widget would take for the mark of a mnemonic.
QString withoutMnemonic(QString text);

} // namespace plotvue
