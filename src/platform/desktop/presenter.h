// Shows and hides the windows on the screen when the handlers of an event are done: a window that is shown
// and hidden again within one event is never seen.
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
    // Where windows were last seen. A window comes back to its place, even if it was built anew.
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
