// A dark desktop, and a visible chart of three months with a projection for the newest, and an empty slot at
// the end.
#pragma once

#include "desktop/chart/chartwidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace plotvue {

inline Chart threeMonths()
{
    return {.design = {.projection = 1, .legends = {{1, u"Projected"}}},
            .titles = {{1, u"Sales"}, {2, u"Product: 4711\r"}},
            .decimals = 0,
            .series = {{1110, 963, 512, 0}, {0, 0, 388, 0}},
            .labels = {u"AUG99", u"SEP99", u"OCT99", u""}};
}

inline QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x1E1F22));
    palette.setColor(QPalette::Text, QColor(0xE6E6E6));
    return palette;
}

struct ShownChart : ChartWidget {
    ShownChart()
    {
        resize(600, 400);
        setChart(threeMonths());
        show();
        activateWindow();
        setFocus();
        QApplication::processEvents();
    }

    // Returns whether the chart accepted the key.
    bool press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(this, &event);
        return event.isAccepted();
    }

    void moveMouse(QPoint to)
    {
        QMouseEvent event(QEvent::MouseMove, to, mapToGlobal(to), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(this, &event);
    }

    void takeMouseAway()
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(this, &event);
    }
};

} // namespace plotvue
