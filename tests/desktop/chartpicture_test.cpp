#include "desktop/chart/chartpicture.h"
#include "desktop/chartsample.h"
#include "desktop/pdf.h"

#include <gtest/gtest.h>

namespace plotvue {

using test::isImage;
using test::objectsOf;

TEST(ChartPicture, IsTwiceAsLargeAndKeepsItsSizeInADocument)
{
    const ShownChart chart;
    const QImage picture = pictureOf(chart);
    EXPECT_EQ(picture.size(), QSize(1200, 800));
    EXPECT_EQ(picture.dotsPerMeterX(), 7559) << "192 dots per inch";
    EXPECT_EQ(picture.dotsPerMeterY(), 7559);
}

TEST(ChartPicture, HasTheBarsOfTheLightScreenOnWhiteOnAnyDesktop)
{
    ShownChart chart;
    const QImage screen = chart.grab().toImage();
    chart.setPalette(darkPalette());
    const QImage picture = pictureOf(chart);
    for (const QPoint corner : {QPoint(0, 0), QPoint(1199, 0), QPoint(0, 799), QPoint(1199, 799)})
        EXPECT_EQ(picture.pixelColor(corner), QColor(Qt::white));
    int bars = 0;
    for (const Bar& bar : chart.chartLayout().bars) {
        if (chart.plotData().series()[bar.series].projection)
            continue; // a projection is hatched
        const QPoint middle = QPointF(bar.box.centreX(), bar.box.centreY()).toPoint();
        const QRect inside = QRectF(bar.box.left, bar.box.top, bar.box.width, bar.box.height)
                                 .adjusted(2, 3, -2, -2)
                                 .toAlignedRect();
        EXPECT_EQ(screen.pixelColor(middle), QColor(0x24, 0x58, 0xB0));
        for (const QPoint place : {inside.topLeft(), inside.bottomRight(), middle})
            EXPECT_EQ(picture.pixelColor(2 * place), screen.pixelColor(middle));
        const QPoint beside(inside.left() - 10, middle.y());
        EXPECT_EQ(picture.pixelColor(2 * beside), screen.pixelColor(beside));
        ++bars;
    }
    EXPECT_EQ(bars, 3);
}

TEST(ChartPicture, HasNoReadOutAndNoFocusFrame)
{
    ShownChart chart;
    const QImage before = pictureOf(chart);
    const QByteArray page = pdfOf(chart);
    const QImage screen = chart.grab().toImage();
    chart.press(Qt::Key_Home);
    EXPECT_NE(chart.grab().toImage(), screen);
    EXPECT_EQ(pictureOf(chart), before);
    EXPECT_EQ(objectsOf(pdfOf(chart)).size(), objectsOf(page).size());
}

TEST(ChartPicture, IsDrawnWithoutTheColoursOfAScreensPixels)
{
    ShownChart chart;
    chart.setChart({.titles = {{2, u"Black on white"}}});
    const QImage picture = pictureOf(chart);
    int grey = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            EXPECT_EQ(colour.saturation(), 0);
            grey += colour != Qt::white && colour != Qt::black;
        }
    EXPECT_GT(grey, 100) << "the edges of letters";
}

TEST(ChartPicture, AsPngIsTheSamePicture)
{
    const ShownChart chart;
    const QImage read = QImage::fromData(encoded(pictureOf(chart), "PNG"), "PNG");
    EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), pictureOf(chart));
    EXPECT_EQ(read.dotsPerMeterX(), 7559);
}

TEST(ChartPicture, AsPdfIsOnePageOfItsOwnSizeWithoutImages)
{
    const ShownChart chart;
    const QByteArray pdf = pdfOf(chart);
    int pages = 0, fonts = 0, images = 0, contents = 0;
    for (const QByteArray& object : objectsOf(pdf)) {
        pages += object.contains("/Type /Page\n");
        fonts += object.contains("/Type /Font\n");
        images += isImage(object);
        contents += object.contains(" re\n") && object.contains(" Tj");
    }
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 450")) << "600 pixels at 96 dpi";
    EXPECT_EQ(pages, 1);
    EXPECT_GT(fonts, 0);
    EXPECT_EQ(images, 0);
    EXPECT_GT(contents, 0) << "streams are looked into";
}

TEST(ChartPicture, TheTestFindsImages)
{
    EXPECT_TRUE(isImage("4 0 obj\n<<\n/Type /XObject\n/Subtype/Image\n"));
    EXPECT_TRUE(isImage("stream\nq\nBI\n/W 1\n/H 1\nID x EI\nQ"));
    EXPECT_FALSE(isImage("stream\nq\n(BI) Tj\nQ"));
}

} // namespace plotvue
