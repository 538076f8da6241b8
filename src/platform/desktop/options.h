// An option group: radio buttons in one frame or several, one chosen in each.
#pragma once

#include "platform/view.h"

#include <map>

class QGroupBox;
class QRadioButton;
class QWidget;

namespace plotvue {

class Window;

class DesktopOptions : public OptionsControl {
public:
    QGroupBox* addFrame(const OptionFrame& declared, Window& window);

    int chosen(int frame) const override;
    void setCaption(int index, TextSpan caption) override;
    void setVisible(int index, bool visible) override;

    void choose(int index); // as a person does it
    OptionsState state() const;

private:
    struct Option {
        int index;
        QRadioButton* button;
    };

    QRadioButton& button(int index) const;

    std::vector<QGroupBox*> frames_;
    std::vector<Option> options_; // in their order on the window
};

} // namespace plotvue
