// Brings the windows to the screen the way they are wanted, once the handlers have had their say: a window
// that is shown and hidden again within one event is never seen.
#pragma once

#include "platform/declaration.h"

#include <QObject>
#include <QPoint>

#include <map>
#include <vector>

namespace plotvue {

class DesktopWindow;

class Presenter : public QObject {
    Q_OBJECT

public:
    // Where windows were last seen; one of the same name, built anew too, comes back there.
    std::map<Name, QPoint> places;

    void enter(DesktopWindow& window) { windows_.push_back(&window); }
    void leave(DesktopWindow& window) { std::erase(windows_, &window); }

    void settleLater(); // when control is back with the event loop
    void settle();

private:
    std::vector<DesktopWindow*> windows_;
    bool pending_ = false;
};

} // namespace plotvue
