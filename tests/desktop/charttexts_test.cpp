// Each text of a chart is painted in its place and nowhere else, and can be read on light and dark desktops.
#include "desktop/chart/chartcolours.h"
#include "desktop/chart/chartpainter.h"
#include "desktop/chart/qtext.h"
#include "desktop/chartsample.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace plotvue {

namespace {

constexpr int scale = 2;              // pixels of the pictures per unit of the chart
constexpr double enoughForText = 4.5; // contrast that the Web Content Accessibility Guidelines require
constexpr double overhang = 1.5;      // how far letters may reach beyond their box, in units

double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double share = channel / 255.;
        return share <= .04045 ? share / 12.92 : std::pow((share + .055) / 1.055, 2.4);
    };
    return .2126 * linear(qRed(colour)) + .7152 * linear(qGreen(colour)) + .0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + .05) / (std::min(a, b) + .05);
}

// The area in which a text may be painted. A slanted text rises from the lower left and ends in the middle of
// the right edge of its box.
QPolygonF placeOf(const Line& line, bool slanted)
{
    const QRectF box = toQRectF(line.box).adjusted(-overhang, -overhang, overhang, overhang);
    if (!slanted)
        return box;
    const double side = std::sqrt(.5);
    const QPointF end(line.box.right(), line.box.centreY());
    QPolygonF place;
    for (const QPointF corner : {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()}) {
        const QPointF from = corner - end;
        place << end + QPointF(from.x() * side + from.y() * side, from.y() * side - from.x() * side);
    }
    return place;
}

struct Ink {
    int inside = 0, outside = 0; // pixels in the place of the text and elsewhere
    double contrast = 1;         // of the strongest pixel to what is under it
};

// The pixels in which the two pictures differ.
Ink inkOf(const QImage& with, const QImage& without, const QPolygonF& place)
{
    Ink ink;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x) {
            const QRgb one = with.pixel(x, y), other = without.pixel(x, y);
            if (one == other)
                continue;
            const QPointF middle((x + .5) / scale, (y + .5) / scale);
            ++(place.containsPoint(middle, Qt::OddEvenFill) ? ink.inside : ink.outside);
            ink.contrast = std::max(ink.contrast, contrast(one, other));
        }
    return ink;
}

class ChartTexts : public testing::TestWithParam<bool> {
protected:
    ChartTexts()
    {
        if (GetParam())
            chart.setPalette(darkPalette());
    }

    QImage painted(const std::function<void(QPainter&)>& paint) const
    {
        QImage image(chart.size() * scale, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(scale, scale);
        paint(painter);
        return image;
    }

    QImage painted(const Layout& layout) const
    {
        return painted([&](QPainter& painter) {
            paintChart(painter, chart.plotData(), layout, chart.palette(), fonts, -1);
        });
    }

    void canBeRead(const Layout& layout, Layout& changed, Line& line) const
    {
        SCOPED_TRACE(toQString(line.text).toStdString());
        const Text text = std::exchange(line.text, {});
        const bool slanted =
            layout.slanted && std::any_of(changed.labels.begin(), changed.labels.end(),
                                          [&](const auto& label) { return &label.name == &line; });
        const Ink ink = inkOf(painted(layout), painted(changed), placeOf(line, slanted));
        line.text = text;
        EXPECT_GT(ink.inside, 0);
        EXPECT_EQ(ink.outside, 0);
        EXPECT_GE(ink.contrast, enoughForText);
    }

    // Compares the chart, for each of its texts, with a chart without that text.
    void everyTextCanBeRead() const
    {
        const Layout layout = chart.chartLayout();
        Layout changed = layout;
        for (Title& title : changed.titles)
            canBeRead(layout, changed, title);
        for (LegendEntry& entry : changed.legend)
            canBeRead(layout, changed, entry.name);
        for (Tick& tick : changed.ticks)
            canBeRead(layout, changed, tick.figure);
        for (SlotLabel& label : changed.labels)
            canBeRead(layout, changed, label.name);
        for (SlotValue& value : changed.values)
            canBeRead(layout, changed, value.figure);
    }

    ShownChart chart;
    ChartFonts fonts{chart.font(), chart.logicalDpiY(), chart};
};

INSTANTIATE_TEST_SUITE_P(OnADesktop, ChartTexts, testing::Bool(),
                         [](const auto& dark) { return dark.param ? "Dark" : "Light"; });

TEST_P(ChartTexts, OfTwoSeriesCanBeRead)
{
    Chart content = threeMonths();
    content.titles[3] = u"as of October";
    content.design.projection = -1;
    content.legends = {{0, u"Volume"}, {1, u"Margin"}};
    chart.setChart(content);
    const Layout& layout = chart.chartLayout();
    EXPECT_EQ(layout.titles.size(), 3U);
    EXPECT_GT(layout.ticks.size(), 2U);
    EXPECT_EQ(layout.labels.size(), 3U);
    EXPECT_GT(layout.values.size(), 2U);
    ASSERT_EQ(layout.legend.size(), 2U);
    everyTextCanBeRead();

    const QImage image = painted(layout);
    for (const LegendEntry& entry : layout.legend) {
        const auto bar = std::find_if(layout.bars.begin(), layout.bars.end(),
                                      [&](const auto& one) { return one.series == entry.series; });
        ASSERT_NE(bar, layout.bars.end());
        const QPointF swatch(entry.swatch.centreX(), entry.swatch.centreY()),
            inside(bar->box.centreX(), bar->box.centreY());
        EXPECT_EQ(image.pixel((swatch * scale).toPoint()), image.pixel((inside * scale).toPoint()));
    }
}

TEST_P(ChartTexts, OfWholeYearsCanBeRead)
{
    Chart content = threeMonths();
    content.labels = {u"J98", u"FEB", u"MAR", u""};
    chart.setChart(content);
    EXPECT_FALSE(chart.chartLayout().labels.back().strong);
    everyTextCanBeRead();
}

TEST_P(ChartTexts, WithSlantedNamesCanBeRead)
{
    Chart content;
    content.design.labels = ChartDesign::Labels::Names;
    content.titles = {{2, u"Categories"}};
    for (int i = 0; i < 12; ++i) {
        content.labels.push_back(u"HYDRAULIC OIL " + Text(1, char16_t(u'A' + i)));
        content.series.resize(1);
        content.series[0].push_back(100 - i);
    }
    chart.setChart(content);
    const Layout& layout = chart.chartLayout();
    EXPECT_TRUE(layout.slanted);
    ASSERT_EQ(layout.labels.size(), 12U);
    for (const SlotLabel& label : layout.labels)
        EXPECT_GE(placeOf(label.name, true).boundingRect().top(), layout.plot.bottom() - layout.em / 2);
    everyTextCanBeRead();
}

TEST_P(ChartTexts, OfTheReadOutCanBeRead)
{
    Chart content = threeMonths();
    content.legends[0] = u"Sales";
    chart.setChart(content);
    const auto readout = [&](const Chart& shown) {
        const PlotData data(shown);
        return painted([&](QPainter& painter) {
            paintChart(painter, data, chart.chartLayout(), chart.palette(), fonts, 2);
            paintReadout(painter, data, chart.chartLayout(), chart.palette(), fonts, 2);
        });
    };
    const QImage before = readout(content);
    Chart month = content, name = content, figure = content;
    month.labels[2] = u"OCT98";
    name.legends[0] = u"Sa1es";
    figure.series[0][2] = 513;
    for (const Chart& other : {month, name, figure}) {
        const Ink ink = inkOf(readout(other), before, QRectF(chart.rect()));
        EXPECT_GT(ink.inside, 5);
        EXPECT_LT(ink.inside, 1000) << "only the changed text differs";
        EXPECT_GE(ink.contrast, enoughForText);
    }
}

TEST_P(ChartTexts, OfTheReadOutAreOnThePaperBesideTheirPoint)
{
    Chart content;
    content.titles = {{1, u"Sales"}};
    content.series = {std::vector<double>(24, 123456)};
    content.labels = std::vector<Text>(24, u"OCT99");
    chart.setChart(content);
    const Layout& layout = chart.chartLayout();
    for (const int point : {0, 1, 11, 12, 22, 23}) {
        const auto picture = [&](bool card) {
            return painted([&](QPainter& painter) {
                paintChart(painter, chart.plotData(), layout, chart.palette(), fonts, point);
                if (card)
                    paintReadout(painter, chart.plotData(), layout, chart.palette(), fonts, point);
            });
        };
        const QImage with = picture(true), without = picture(false);
        const Ink card = inkOf(with, without, QRectF(chart.rect()).adjusted(1, 1, -1, -1));
        EXPECT_GT(card.inside, 1000) << point;
        EXPECT_EQ(card.outside, 0) << point << ": it reaches an edge, as one does that is cut off";
        const Ink hiding = inkOf(with, without, toQRectF(layout.slotBox(point)));
        EXPECT_EQ(hiding.inside, 0) << point << ": it hides its bar";
    }
}

} // namespace

} // namespace plotvue
