// Context menus, opened with the mouse, the Menu key or Shift+F10.
#pragma once

#include <QAction>
#include <QKeySequence>

#include <functional>

namespace plotvue {

// Adds an entry to the context menu of the widget, which owns it. The menu shows the first of the keys;
// `keysIn` says whether they work in the whole window or only in the widget.
QAction* addToContextMenu(QWidget& widget, const QString& text, const QList<QKeySequence>& keys,
                          Qt::ShortcutContext keysIn, const std::function<void()>& triggered);

} // namespace plotvue
