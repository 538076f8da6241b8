// Shows and hides windows after the handlers of an event have run, so that a window that is shown and hidden
// within one event never appears.
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
    // The last position of each window. It reappears there, even if it was built again.
    std::map<Name, QPoint> places;

    void enter(DesktopWindow& window) { windows_.push_back(&window); }
    void leave(DesktopWindow& window) { std::erase(windows_, &window); }

    void settleLater(); // settles on return to the event loop
    void settle();

private:
    std::vector<DesktopWindow*> windows_;
    bool pending_ = false;
};

} // namespace plotvue
