// A chart in a window, with one current point that mouse, keys and assistive technology share.
#pragma once

#include "platform/desktop/chart/chartfonts.h"

#include <QWidget>

#include <optional>

namespace plotvue {

class ChartWidget : public QWidget {
    Q_OBJECT

public:
    explicit ChartWidget(QWidget* parent = nullptr);

    void setChart(const Chart& chart);
    const Chart& chart() const { return chart_; }
    const chart::PlotData& plotData() const { return *data_; }

    int points() const { return data_->pointCount(); } // an empty slot at the end is none
    int currentPoint() const { return current_; }      // -1: none
    void setCurrentPoint(int point);                   // -1 or what is no point: none
    int pointAt(QPoint position) const;                // -1: none
    QRect pointRect(int point) const;                  // its whole slot, in widget coordinates

    const chart::Layout& chartLayout() const; // where everything is at the widget's size

    // Draws the chart as on paper: vectors on white, whatever the desktop's colours are, without a current
    // point. It covers the widget's size from the painter's origin on, in the painter's units.
    void paint(QPainter& painter) const;

    QSize minimumSizeHint() const override { return {280, 220}; }
    QSize sizeHint() const override { return {900, 560}; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    const ChartFonts& fonts() const;
    std::optional<int> pointForKey(const QKeyEvent& event) const;

    Chart chart_;
    std::optional<chart::PlotData> data_; // of the chart
    int current_ = -1;
    bool hovering_ = false;
    bool byKey_ = false; // the focus came by key or a key was used: a frame shows it
    bool announcing_ = false;

    // Kept until the size, the chart, the font or the device changes.
    mutable std::optional<ChartFonts> fonts_;
    mutable std::optional<chart::Layout> layout_;
    mutable QSize layoutSize_;
    mutable double layoutScale_ = 0;
};

} // namespace plotvue
