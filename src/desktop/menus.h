// The context menus of charts, lists and text boxes, and what their entries do.
#pragma once

#include "platform/platform.h"

#include <QString>

#include <functional>

namespace plotvue {

class ChartWidget;
class GridTable;
class TextLine;

class Menus {
public:
    explicit Menus(Platform& platform) : platform_(platform) {}

    // Give the widget its menu. `keys`: where the keys of the entries work, in the whole window or in the
    // widget.
    void add(ChartWidget& chart, Qt::ShortcutContext keys);
    void add(GridTable& grid, const Property<Grid>& rows, Qt::ShortcutContext keys);
    void add(TextLine& line);

private:
    // Runs an action of the user. A failure is told in a message box.
    void run(const std::function<void()>& action);

    Platform& platform_;
    QString folder_; // in which a picture was saved last; empty: none yet
};

} // namespace plotvue
