#include "desktop/chart_sample.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <gtest/gtest.h>

namespace plotvue {

namespace {

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x1E1F22));
    palette.setColor(QPalette::Text, QColor(0xE6E6E6));
    return palette;
}

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

TEST(ChartPainting, TypeHasTheSameSizeOnFinerPaper)
{
    ShownChart chart;
    EXPECT_EQ(printed(chart, 3780), printed(chart, 4 * 3780));
}

TEST(ChartPainting, TheProjectionIsLighterThanWhatItStandsOn)
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

TEST(ChartPainting, SurvivesEverySizeAndNoContent)
{
    for (const QSize size : {QSize(1, 1), QSize(20, 300), QSize(320, 220)}) {
        ShownChart chart;
        chart.resize(size);
        chart.press(Qt::Key_Home);
        EXPECT_EQ(chart.grab().toImage().size(), size);
        chart.setContent({}, {});
        EXPECT_EQ(chart.grab().toImage().size(), size);
    }
}

} // namespace plotvue
