// An option group as radio buttons, in one frame or several.
#pragma once

#include "platform/desktop/smallwidgets.h"

class QGroupBox;

namespace plotvue {

class OptionButtons : public QObject {
public:
    OptionButtons(Controls& controls, Name group, QObject* parent);

    // The buttons of the frame, which is the next of the group.
    QGroupBox* addFrame(const OptionFrame& declared, QWidget* parent);

private:
    void show();

    Controls& controls_;
    Name group_;
    std::vector<OptionButton*> buttons_; // as the group's options
};

} // namespace plotvue
