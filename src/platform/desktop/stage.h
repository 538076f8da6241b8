// Brings the windows to the screen the way they are wanted, once the handlers have had their say: a window
// that is shown and hidden again within one event is never seen.
#pragma once

#include "platform/declaration.h"

#include <QObject>
#include <QPoint>

#include <map>
#include <vector>

namespace plotvue {

class DesktopView;

class Stage : public QObject {
    Q_OBJECT

public:
    // Where windows were last seen; one of the same name, built anew too, comes back there.
    std::map<Name, QPoint> places;

    void enter(DesktopView& view) { views_.push_back(&view); }
    void leave(DesktopView& view) { std::erase(views_, &view); }

    void settleLater(); // when control is back with the event loop
    void settle();

private:
    std::vector<DesktopView*> views_;
    bool pending_ = false;
};

} // namespace plotvue
