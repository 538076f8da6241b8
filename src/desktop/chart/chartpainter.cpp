#include "desktop/chart/chartpainter.h"

#include "desktop/chart/barpainter.h"
#include "desktop/chart/qtext.h"

#include <QPainter>

namespace plotvue {

namespace {

class ChartPainter {
public:
    ChartPainter(QPainter& painter, const PlotData& data, const Layout& layout, const ChartInks& inks,
                 const ChartFonts& fonts)
        : painter_(painter),
          layout_(layout),
          inks_(inks),
          fonts_(fonts)
    {
        for (const auto& series : data.series())
            looks_.push_back({barColours(series, inks), inks.paper, series.projection});
    }

    void paintTitles();
    void paintLegend();
    void paintAxis();
    void paintLabels();
    void paintBars();
    void paintValues(int current);

private:
    void paintLine(const Line& line) { painter_.drawText(toQRectF(line.box), oneLine, toQString(line.text)); }
    void paintRule(const QRectF& rule, const QColor& colour) { painter_.fillRect(rule, colour); }
    void paintSlanted(const Line& line);

    QPainter& painter_;
    const Layout& layout_;
    const ChartInks& inks_;
    const ChartFonts& fonts_;
    std::vector<BarLook> looks_;
};

void ChartPainter::paintTitles()
{
    for (const Title& title : layout_.titles) {
        painter_.setFont(fonts_.font(title.role));
        painter_.setPen(title.main ? inks_.ink : inks_.soft);
        paintLine(title);
    }
}

void ChartPainter::paintLegend()
{
    for (const LegendEntry& entry : layout_.legend) {
        paintBar(painter_, toQRectF(entry.swatch), looks_[entry.series], BarEnd::RoundTop);
        painter_.setPen(inks_.ink);
        paintLine(entry.name);
    }
}

void ChartPainter::paintAxis()
{
    const Rect& plot = layout_.plot;
    painter_.setPen(inks_.soft);
    for (const Tick& tick : layout_.ticks) {
        paintRule({plot.left, tick.y, plot.width, layout_.hairline}, inks_.grid);
        paintLine(tick.figure);
    }
    for (const double x : layout_.yearRules)
        paintRule({x, plot.top, layout_.hairline, plot.height + layout_.em * .5}, inks_.grid);
}

void ChartPainter::paintSlanted(const Line& line)
{
    const Rect& box = line.box;
    painter_.save();
    painter_.translate(box.right(), box.centreY());
    painter_.rotate(-45);
    painter_.drawText(QRectF(-box.width, -box.height / 2, box.width, box.height), oneLine,
                      toQString(line.text));
    painter_.restore();
}

void ChartPainter::paintLabels()
{
    painter_.setFont(fonts_.font(layout_.labelRole));
    for (const SlotLabel& label : layout_.labels) {
        painter_.setPen(label.strong ? inks_.ink : inks_.soft);
        if (layout_.slanted)
            paintSlanted(label.name);
        else
            paintLine(label.name);
    }
    painter_.setFont(fonts_.font(TextRole::Small));
}

void ChartPainter::paintBars()
{
    for (const Bar& bar : layout_.bars) {
        const QRectF box = toQRectF(bar.box);
        const BarEnd far = bar.up ? BarEnd::RoundTop : BarEnd::RoundBottom;
        paintBar(painter_, box, looks_[bar.series], bar.end ? far : BarEnd::Square);
        if (!bar.end && box.height() > 3) { // separates the bars of a stack
            const double y = bar.up ? box.top() : box.bottom() - layout_.hairline;
            paintRule({box.left(), y, box.width(), layout_.hairline}, inks_.paper);
        }
    }
    if (layout_.slotCount > 0)
        paintRule({layout_.plot.left, layout_.zero, layout_.plot.width, layout_.hairline}, inks_.axis);
}

void ChartPainter::paintValues(int current)
{
    for (const SlotValue& value : layout_.values) { // hide the grid lines under the figure
        painter_.fillRect(toQRectF(value.figure.box).adjusted(-2, 1, 2, -1),
                          value.slot == current ? inks_.band : inks_.paper);
    }
    painter_.setPen(inks_.ink);
    painter_.setFont(fonts_.font(layout_.valueRole));
    for (const SlotValue& value : layout_.values)
        paintLine(value.figure);
}

} // namespace

QRectF toQRectF(const Rect& box)
{
    return {box.left, box.top, box.width, box.height};
}

void paintChart(QPainter& painter, const PlotData& data, const Layout& layout, const QPalette& palette,
                const ChartFonts& fonts, int current)
{
    const ChartInks inks(palette);
    painter.fillRect(QRectF(0, 0, layout.paper.width, layout.paper.height), inks.paper);
    if (current >= 0)
        painter.fillRect(toQRectF(layout.slotBox(current)).adjusted(0, -4, 0, 0), inks.band);
    ChartPainter chart(painter, data, layout, inks, fonts);
    chart.paintTitles();
    painter.setFont(fonts.font(TextRole::Small));
    chart.paintAxis();
    chart.paintLegend();
    chart.paintLabels();
    chart.paintBars();
    chart.paintValues(current);
}

} // namespace plotvue
