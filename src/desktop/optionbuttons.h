// Displays an option group as radio buttons in one or more frames.
#pragma once

#include "desktop/smallwidgets.h"

class QGroupBox;

namespace plotvue {

class OptionButtons : public QObject {
public:
    OptionButtons(Controls& controls, Name group, QObject* parent);

    // Creates the next frame of the group and its buttons.
    QGroupBox* addFrame(const OptionFrame& declared, QWidget* parent);

private:
    void show();

    Controls& controls_;
    Name group_;
    std::vector<OptionButton*> buttons_; // in the order of the group's options
};

} // namespace plotvue
