// Makes a window's widgets from its declaration.
#pragma once

#include "platform/desktop/chart/chartwidget.h"
#include "platform/desktop/options.h"

#include <memory>

class QLabel;
class QListWidget;
class QPushButton;

namespace plotvue {

class GridModel;
class GridTable;
class TextLine;

class DesktopChart : public ChartControl {
public:
    DesktopChart(ChartWidget& widget, const ChartBox& declared);
    const ChartContent& shown() const { return widget_.content(); }

protected:
    void contentChanged() override { widget_.setContent(content(), design_); }

private:
    ChartWidget& widget_;
    ChartDesign design_;
};

// The controls of a window by name; the widgets belong to the window.
struct Controls {
    std::map<Name, QPushButton*> buttons;
    std::map<Name, QLabel*> labels;
    std::map<Name, TextLine*> texts;
    std::map<Name, QListWidget*> lists;
    std::map<Name, GridTable*> grids;
    std::map<Name, DesktopOptions> options;
    std::map<Name, DesktopChart> charts;
};

Controls buildControls(const Declaration& declaration, Window& window);

} // namespace plotvue
