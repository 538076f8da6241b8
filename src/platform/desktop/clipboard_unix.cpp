#include "platform/desktop/clipboard.h"
#include "platform/desktop/shown.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace plotvue {

Text readClipboard()
{
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    // Ask for one format only: if the clipboard's owner hangs, each request waits for the toolkit's timeout.
    if (!held || !held->hasFormat(QStringLiteral("text/plain")))
        return {};
    return mendLineEnds(toText(held->text()));
}

} // namespace plotvue
