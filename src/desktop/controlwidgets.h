// Creates the widgets of the controls of a window. Each widget displays its control from then on.
#pragma once

#include "desktop/windowwidget.h"

#include <map>

namespace plotvue {

class Menus;
class OptionButtons;

class ControlWidgets {
public:
    // `menus` must outlive the window.
    ControlWidgets(WindowWidget& window, Menus& menus);

    // Each creates a child of the window that is in no layout yet.
    QWidget* make(const Button& declared);
    QWidget* make(const Label& declared);
    QWidget* make(const TextBox& declared);
    QWidget* make(const ListBox& declared);
    QWidget* make(const OptionFrame& declared);
    QWidget* make(const ChartBox& declared);
    QWidget* make(const GridBox& declared);
    QWidget* make(const PictureBox& declared);

private:
    Controls& controls_;
    WindowWidget& window_;
    Menus& menus_;
    Qt::ShortcutContext menuKeys_; // the whole window if it has only one chart or list
    std::map<Name, OptionButtons*> options_;
};

} // namespace plotvue
