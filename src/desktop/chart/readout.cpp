#include "chart/drawable.h"
#include "desktop/chart/barpainter.h"
#include "desktop/chart/chartpainter.h"
#include "desktop/chart/qtext.h"

#include <QPainter>

namespace plotvue {

namespace {

constexpr double rowHeight = 1.25, besideSlot = 8, fromEdge = 4;

struct Row {
    Text name;
    QString figure;
    int series = -1; // index of the series; -1: the total
};

std::vector<Row> rowsOf(const PlotData& data, int slot)
{
    std::vector<Row> rows;
    double total = 0;
    for (std::size_t s = 0; s < data.series().size(); ++s) {
        const std::optional<double> value = data.value(s, slot);
        if (!value || (data.series()[s].projection && *value == 0))
            continue;
        total += *value;
        rows.push_back({drawable(data.series()[s].name), toQString(data.number(*value)), int(s)});
    }
    if (data.stacked() && rows.size() > 1)
        rows.push_back({u"Total", toQString(data.number(total)), -1});
    return rows;
}

class Card {
public:
    Card(const PlotData& data, const Layout& layout, const ChartFonts& fonts, int slot)
        : data_(data),
          em_(layout.em),
          fonts_(fonts),
          rows_(rowsOf(data, slot))
    {
        bold_ = fonts.font(TextRole::Small);
        bold_.setWeight(QFont::DemiBold);
        // Widths are measured in the normal weight; `boldness` adds what bold figures need.
        const auto width = [&](TextSpan text) { return fonts.width(text, TextRole::Small); };
        const double maxWidth = layout.paper.width * .5;
        const auto fitted = [&](const Text& text) { return toQString(elided(text, maxWidth, width)); };
        if (!data.components())
            label_ = fitted(drawable(data.fullLabel(slot)));
        double names = 0, numbers = 0;
        for (Row& row : rows_) {
            row.name = elided(row.name, maxWidth, width);
            names = qMax(names, width(row.name));
            numbers = qMax(numbers, width(row.figure.toStdU16String()) * boldness);
        }
        const double inside = qMax(names + numbers + em_ * 2.5, width(label_.toStdU16String()) * boldness);
        const double lines = double(rows_.size()) + (label_.isEmpty() ? 0 : 1);
        place(layout, slot, QSizeF(inside + 2 * padding(), em_ * rowHeight * lines + padding()));
    }

    bool isEmpty() const { return rows_.empty(); }
    void paint(QPainter& painter, const ChartInks& inks) const;

private:
    static constexpr double boldness = 1.15;

    double padding() const { return em_ * .6; }
    void place(const Layout& layout, int slot, QSizeF size);
    void paintPaper(QPainter& painter, const ChartInks& inks) const;
    void paintRow(QPainter& painter, const ChartInks& inks, const Row& row, const QRectF& place) const;

    const PlotData& data_;
    double em_;
    const ChartFonts& fonts_;
    QFont bold_;
    QString label_;
    std::vector<Row> rows_;
    QRectF box_;
};

void Card::place(const Layout& layout, int slot, QSizeF size)
{
    const Rect at = layout.slotBox(slot);
    double left = at.right() + besideSlot;
    if (left + size.width() > layout.paper.width - fromEdge)
        left = at.left - besideSlot - size.width();
    const double top = qMin(at.top + fromEdge, layout.paper.height - fromEdge - size.height());
    box_ = QRectF(QPointF(layout.snapped(qMax(fromEdge, left)), layout.snapped(qMax(fromEdge, top))), size);
}

void Card::paintPaper(QPainter& painter, const ChartInks& inks) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 14));
    for (int i = 3; i > 0; --i)
        painter.drawRoundedRect(box_.adjusted(-i, 1 - i, i, i + 1), 5 + i, 5 + i);
    painter.setBrush(inks.paper);
    painter.setPen(QPen(mixed(inks.ink, inks.paper, .75), 1));
    painter.drawRoundedRect(box_.adjusted(.5, .5, -.5, -.5), 5, 5);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void Card::paintRow(QPainter& painter, const ChartInks& inks, const Row& row, const QRectF& place) const
{
    if (row.series >= 0) {
        const auto& series = data_.series()[std::size_t(row.series)];
        const double side = qRound(em_ * .7);
        const QRectF swatch(qRound(place.left()), qRound(place.center().y() - side / 2), side, side);
        paintBar(painter, swatch, {barColours(series, inks), inks.paper, series.projection},
                 BarEnd::RoundTop);
    }
    painter.setFont(fonts_.font(TextRole::Small));
    painter.setPen(mixed(inks.ink, inks.paper, .25));
    painter.drawText(place.adjusted(em_ * 1.1, 0, 0, 0), oneLine, toQString(row.name));
    painter.setFont(bold_);
    painter.setPen(inks.ink);
    painter.drawText(place, oneLine | Qt::AlignRight, row.figure);
}

void Card::paint(QPainter& painter, const ChartInks& inks) const
{
    paintPaper(painter, inks);
    QRectF place(box_.left() + padding(), box_.top() + padding() / 2, box_.width() - 2 * padding(),
                 em_ * rowHeight);
    if (!label_.isEmpty()) {
        painter.setFont(bold_);
        painter.setPen(inks.ink);
        painter.drawText(place, oneLine, label_);
        place.translate(0, place.height());
    }
    for (const Row& row : rows_) {
        paintRow(painter, inks, row, place);
        place.translate(0, place.height());
    }
}

} // namespace

void paintReadout(QPainter& painter, const PlotData& data, const Layout& layout, const QPalette& palette,
                  const ChartFonts& fonts, int current)
{
    const Card card(data, layout, fonts, current);
    if (!card.isEmpty())
        card.paint(painter, ChartInks(palette));
}

} // namespace plotvue
