// The widget of a chart. Mouse, keyboard and assistive technology share one current point.
#pragma once

#include "desktop/chart/chartfonts.h"

#include <QWidget>

#include <optional>

namespace plotvue {

class ChartWidget : public QWidget {
    Q_OBJECT

public:
    explicit ChartWidget(QWidget* parent = nullptr);

    void setChart(const Chart& chart);
    const Chart& chart() const { return chart_; }
    const PlotData& plotData() const { return *data_; }

    int points() const { return data_->pointCount(); } // without an empty slot at the end
    int currentPoint() const { return current_; }      // -1: none
    void setCurrentPoint(int point);                   // none if `point` is -1 or no point of the chart
    int pointAt(QPoint position) const;                // -1: none
    QRect pointRect(int point) const;                  // its whole slot, in widget coordinates

    const Layout& chartLayout() const; // for the current size of the widget

    // Paints the chart for printing and copying: on white, without a current point. It begins at the
    // painter's origin, and is as many of the painter's units wide and high as the widget is on the screen.
    // `pixels` is the number of device pixels per unit, or 0 for vectors.
    void paint(QPainter& painter, double pixels = 0) const;

    QSize minimumSizeHint() const override { return {280, 220}; }
    QSize sizeHint() const override { return {900, 560}; }

signals:
    void chartChanged();

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
    std::optional<PlotData> data_; // refers to chart_
    int current_ = -1;
    bool hovering_ = false;
    bool byKey_ = false; // whether to draw the focus frame: the focus came by key, or a key was used
    bool announcing_ = false;

    // Cached until the size, the chart, the font or the device pixel ratio changes.
    mutable std::optional<ChartFonts> fonts_;
    mutable std::optional<Layout> layout_;
    mutable QSize layoutSize_;
    mutable double layoutScale_ = 0;
};

} // namespace plotvue
