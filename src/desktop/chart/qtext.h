// Conversion between the application's text and the toolkit's.
#pragma once

#include "capture/text.h"

#include <QString>

namespace plotvue {

QString toQString(TextSpan text);
Text toText(const QString& text);

} // namespace plotvue
