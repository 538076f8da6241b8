#include "desktop/chart/chartpainter.h"
#include "desktop/chartsample.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <utility>

namespace plotvue {

namespace {

QImage printed(const ChartWidget& chart, int dotsPerMeter)
{
    QImage image(chart.size(), QImage::Format_RGB32);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    chart.paint(painter);
    painter.end();
    return image;
}

QColor middleOfBar(const QImage& image, const ChartWidget& chart, int point)
{
    const QRect slot = chart.pointRect(point);
    return image.pixelColor(slot.center().x(), slot.bottom() - 10);
}

int darkIn(const QImage& image, const QRect& box)
{
    int count = 0;
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x)
            count += image.pixelColor(x, y).lightness() < 128;
    return count;
}

int pixelsOf(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour;
    return count;
}

double brightness(const QColor& colour)
{
    return colour.lightnessF();
}

} // namespace

TEST(ChartPainting, PrintsNoImages)
{
    ShownChart chart;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        painter.scale(4, 4);
        chart.paint(painter);
    }
    EXPECT_GT(bytes.size(), 1000);
    EXPECT_TRUE(bytes.contains("/Type /Font"));
    EXPECT_FALSE(bytes.contains("/Subtype /Image"));
}

TEST(ChartPainting, IsDarkOnADarkDesktopButPrintsOnWhite)
{
    ShownChart chart;
    chart.setPalette(darkPalette());
    const QImage screen = chart.grab().toImage();
    EXPECT_EQ(screen.pixelColor(5, 5), QColor(0x1E1F22));
    const QImage paper = printed(chart, 3780);
    EXPECT_EQ(paper.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(paper.pixelColor(599, 399), QColor(Qt::white));
    EXPECT_EQ(middleOfBar(paper, chart, 0), QColor(0x24, 0x58, 0xB0));
    EXPECT_GT(brightness(middleOfBar(screen, chart, 0)), brightness(middleOfBar(paper, chart, 0)));
}

TEST(ChartPainting, PrintsNeitherTheCurrentPointNorTheFocus)
{
    ShownChart chart;
    const QImage before = printed(chart, 3780);
    const QImage screenBefore = chart.grab().toImage();
    chart.press(Qt::Key_Home);
    EXPECT_NE(chart.grab().toImage(), screenBefore);
    EXPECT_EQ(printed(chart, 3780), before);
}

TEST(ChartPainting, HasAFrameIfTheFocusCameByKey)
{
    ShownChart chart;
    const QColor frame = chart.palette().color(QPalette::Highlight);
    const auto framed = [&] {
        const QImage screen = chart.grab().toImage();
        return screen.pixelColor(300, 1) == frame && screen.pixelColor(1, 200) == frame &&
               screen.pixelColor(300, 398) == frame && screen.pixelColor(598, 200) == frame;
    };
    for (const auto& [reason, seen] :
         {std::pair{Qt::MouseFocusReason, false}, std::pair{Qt::TabFocusReason, true},
          std::pair{Qt::BacktabFocusReason, true}}) {
        chart.clearFocus();
        EXPECT_FALSE(framed());
        chart.setFocus(reason);
        EXPECT_EQ(framed(), seen);
    }
}

TEST(ChartPainting, OnlyTheReadOutHasTheFullLabel)
{
    ShownChart chart;
    const QImage before = chart.grab().toImage(), paper = printed(chart, 3780);
    chart.setCurrentPoint(1);
    const QImage read = chart.grab().toImage();
    Chart content = threeMonths();
    content.fullLabels = {u"AUG99", u"in September 99", u"OCT99", u""};
    chart.setChart(content);
    EXPECT_NE(chart.grab().toImage(), read);
    chart.setCurrentPoint(-1);
    EXPECT_EQ(chart.grab().toImage(), before);
    EXPECT_EQ(printed(chart, 3780), paper);
}

TEST(ChartPainting, AFigureAboveABarIsAsWideAsItsPlace)
{
    ShownChart chart;
    QFont font = chart.font();
    font.setPointSizeF(10); // with 8 points, as under Wine, Small would be as small as Tiny
    chart.setFont(font);
    Chart content = threeMonths();
    content.series = {{1111111, 1111111, 1111111, 0}};
    chart.setChart(content);
    std::set<TextRole> sizes;
    // From wide to narrow, so that with any font some widths need Tiny and others Small.
    for (int width = 600; width > 150; width -= 4) {
        chart.resize(width, 400);
        const QImage screen = chart.grab().toImage();
        const Layout& layout = chart.chartLayout();
        if (layout.values.empty())
            continue;
        sizes.insert(layout.valueRole);
        const QRect box = toQRectF(layout.values[1].figure.box).toAlignedRect();
        EXPECT_GT(darkIn(screen, box.adjusted(box.width() - 8, 0, 0, 0)), 0) << width;
        EXPECT_EQ(darkIn(screen, box.adjusted(box.width(), 0, 4, 0)), 0) << width;
    }
    EXPECT_EQ(sizes, (std::set{TextRole::Tiny, TextRole::Small}));
}

TEST(ChartPainting, TextHasTheSameSizeAtAHigherResolution)
{
    ShownChart chart;
    EXPECT_EQ(printed(chart, 3780), printed(chart, 4 * 3780));
}

TEST(ChartPainting, TheProjectionIsLighterThanTheBarBelow)
{
    ShownChart chart;
    const QImage screen = chart.grab().toImage();
    const QRect slot = chart.pointRect(2);
    int light = 0, solid = 0;
    for (int y = slot.top(); y < slot.bottom(); ++y) {
        const QColor colour = screen.pixelColor(slot.center().x(), y);
        solid += colour == QColor(0x24, 0x58, 0xB0);
        light += colour.saturation() > 0 && colour.lightness() > 200;
    }
    EXPECT_GT(solid, 50);
    EXPECT_GT(light, 50);
}

// Two components as in the profit analyses: green for a gain, red for zero or a loss.
struct Components : ShownChart {
    Components(double volume, double margin)
    {
        Chart content;
        content.design = {ChartDesign::Bars::Grouped, ChartDesign::Labels::Names};
        content.series = {{volume}, {margin}};
        content.legends = {{0, u"Volume"}, {1, u"Margin"}};
        content.colours = {{0, volume > 0 ? green : red}, {1, margin > 0 ? green : red}};
        content.axisMax = std::max({volume, margin, 0.});
        content.axisMin = std::min({volume, margin, 0.});
        setChart(content);
    }

    // The number of pixels of the bar that have exactly this colour.
    int pixels(const QImage& image, int component, Colour colour) const
    {
        const QRect slot = pointRect(component) & image.rect();
        const QColor wanted(colour.red, colour.green, colour.blue);
        int count = 0;
        for (int y = slot.top(); y <= slot.bottom(); ++y)
            for (int x = slot.left(); x <= slot.right(); ++x)
                count += image.pixelColor(x, y) == wanted;
        return count;
    }

    static constexpr Colour green{0, 255, 0}, red{255, 0, 0};
};

TEST(ChartPainting, RequestedColoursAreDrawnExactly)
{
    Components chart(400, -300);
    const QImage light = chart.grab().toImage(), paper = printed(chart, 3780);
    chart.setPalette(darkPalette());
    const QImage dark = chart.grab().toImage();
    for (const QImage& image : {light, dark, paper}) {
        EXPECT_GT(chart.pixels(image, 0, Components::green), 5000);
        EXPECT_GT(chart.pixels(image, 1, Components::red), 5000);
        EXPECT_EQ(chart.pixels(image, 1, Components::green), 0);
        EXPECT_EQ(chart.pixels(image, 0, Components::red), 0);
    }
}

TEST(ChartPainting, AComponentOfExactlyZeroDrawsItsBarRed)
{
    Components chart(0, 300);
    const QImage light = chart.grab().toImage(), paper = printed(chart, 3780);
    chart.setPalette(darkPalette());
    for (const QImage& image : {light, chart.grab().toImage(), paper}) {
        EXPECT_GT(chart.pixels(image, 0, Components::red), 20) << "a flat bar";
        EXPECT_GT(chart.pixels(image, 1, Components::green), 5000);
    }
    Components both(0, 0);
    for (const int component : {0, 1})
        EXPECT_GT(both.pixels(both.grab().toImage(), component, Components::red), 20);
}

TEST(ChartPainting, HasBarsAtEverySizeThatHasRoomForThem)
{
    for (const QSize size : {QSize(1, 1), QSize(20, 300), QSize(280, 220), QSize(3000, 60)}) {
        SCOPED_TRACE(std::to_string(size.width()) + " x " + std::to_string(size.height()));
        ShownChart chart;
        chart.resize(size);
        const bool small = size.width() < chart.minimumSizeHint().width() ||
                           size.height() < chart.minimumSizeHint().height();
        EXPECT_TRUE(small || pixelsOf(chart.grab().toImage(), QColor(0x24, 0x58, 0xB0)) > 2000);
        chart.press(Qt::Key_Home); // paints the read-out and the frame of the focus, too
        chart.grab();
    }
}

TEST(ChartPainting, IsEmptyPaperWithoutContent)
{
    ShownChart chart;
    chart.setPalette(darkPalette());
    chart.setChart({});
    const QImage screen = chart.grab().toImage();
    EXPECT_EQ(pixelsOf(screen, QColor(0x1E1F22)), screen.width() * screen.height());
    const QImage paper = printed(chart, 3780);
    EXPECT_EQ(pixelsOf(paper, Qt::white), paper.width() * paper.height());
}

} // namespace plotvue
