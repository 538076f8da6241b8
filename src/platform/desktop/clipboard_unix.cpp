#include "platform/desktop/clipboard.h"
#include "platform/desktop/shown.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace plotvue {

Text readClipboard()
{
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    // One question: an owner that hangs costs the toolkit's time limit for each.
    if (!held || !held->hasFormat(QStringLiteral("text/plain")))
        return {};
    return mendLineEnds(toText(held->text()));
}

} // namespace plotvue
