// Text between the system and the toolkit.
#pragma once

#include "capture/text.h"

#include <QString>

namespace plotvue {

QString toQString(TextSpan text);
Text toText(const QString& text);

} // namespace plotvue
