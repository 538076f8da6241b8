// What is printed of a window, and on what paper.
#include "desktop/desktopfixture.h"
#include "desktop/pdf.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyle>
#include <QTableView>
#include <QTemporaryFile>

#include <algorithm>

namespace plotvue {

namespace {

class PaperTest : public test::DesktopTest {
protected:
    // The client area, printed on white paper. `page` is the part of the paper that may be printed on.
    static QImage printedOn(WindowWidget& window, QSize page, QSize paper)
    {
        QImage image(paper, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawOnPaper(window, painter, QRectF(QPointF(0, 0), page));
        return image;
    }
    static QImage printedOn(WindowWidget& window, QSize page) { return printedOn(window, page, page); }
};

// How tall a picture may be that the desktop's style paints: the surface of a button, an option or a heading;
// on Windows also a frame.
int tallestSurface(const WindowWidget& window)
{
    int height = 2 * window.fontMetrics().height();
    if (QApplication::style()->inherits("QWindowsXPStyle"))
        for (const auto* frame : window.findChildren<QGroupBox*>())
            height = std::max(height, frame->height());
    return height;
}

TEST_F(PaperTest, PrintsAsVectorsOnWhite)
{
    const Built every = shown();
    WindowWidget& window = every.widget();
    const QPalette before = window.palette();
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter paper(&file);
        paper.setResolution(window.logicalDpiY());
        QPainter painter(&paper);
        drawOnPaper(window, painter, QRectF(QPointF(0, 0), paper.pageLayout().paintRectPixels(96).size()));
    }
    qsizetype texts = 0;
    for (const QByteArray& object : test::objectsOf(file.data())) {
        texts += object.count(" Tj");
        EXPECT_LE(test::imageHeight(object), tallestSurface(window));
    }
    const qsizetype captions =
        window.findChildren<QAbstractButton*>().size() + window.findChildren<QLabel*>().size();
    EXPECT_GT(texts, captions);
    EXPECT_EQ(window.palette(), before);
}

TEST_F(PaperTest, IsTheSameForEveryTheme)
{
    const Built every = shown();
    WindowWidget& window = every.widget();
    const QPalette light = QApplication::palette();
    const QImage ofLight = printedOn(window, window.size());
    QApplication::setPalette(QPalette(QColor(40, 40, 40), QColor(30, 30, 30)));
    QCoreApplication::processEvents(); // lets the widgets receive the new palette
    const QImage ofDark = printedOn(window, window.size());
    QApplication::setPalette(light);
    EXPECT_EQ(ofDark.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_EQ(ofDark, ofLight);
}

TEST_F(PaperTest, PrintedRowsStayWithinTheirGrid)
{
    const Built every = shown();
    WindowWidget& window = every.widget();
    auto& table = *window.findChild<QTableView*>();
    const auto printed = [&](const Text& text) {
        every.controls->grid("Grid1").change([&](Grid& rows) {
            rows.setRows(60);
            for (int row = 1; row < 60; ++row)
                rows.setCell(row, 1, text);
        });
        return printedOn(window, window.size());
    };
    const QImage without = printed(u"");
    table.setColumnWidth(1, 3 * table.width());
    table.horizontalScrollBar()->setValue(table.width());
    const QImage with = printed(Text(400, u'#'));
    const QRect grid(table.mapTo(&window, QPoint(0, 0)), table.size());
    int inside = 0, outside = 0;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x)
            if (with.pixel(x, y) != without.pixel(x, y))
                ++(grid.contains(x, y) ? inside : outside);
    EXPECT_GT(inside, 0);
    EXPECT_EQ(outside, 0);
}

// The smallest rectangle that holds everything drawn.
QRect drawnIn(const QImage& paper)
{
    QRect drawn;
    for (int y = 0; y < paper.height(); ++y)
        for (int x = 0; x < paper.width(); ++x)
            if (paper.pixelColor(x, y) != QColor(Qt::white))
                drawn |= QRect(x, y, 1, 1);
    return drawn;
}

TEST_F(PaperTest, WindowFillsEveryPageAndKeepsItsAspectRatio)
{
    const Built every = shown();
    WindowWidget& window = every.widget();
    const QSize letter(816, 1056), a4(794, 1123); // at 96 dots per inch
    for (const QSize page : {letter, letter.transposed(), a4, a4.transposed()}) {
        const QRect drawn = drawnIn(printedOn(window, page, page + QSize(200, 200)));
        const QSize whole = window.size().scaled(page, Qt::KeepAspectRatio);
        EXPECT_TRUE(QRect(QPoint(0, 0), page).contains(drawn)) << page.width() << 'x' << page.height();
        EXPECT_LE(drawn.width(), whole.width());
        EXPECT_LE(drawn.height(), whole.height());
        EXPECT_GT(drawn.width(), whole.width() * 9 / 10);
        EXPECT_GT(drawn.height(), whole.height() * 9 / 10);
    }
}

TEST_F(PaperTest, HasNothingThatIsHiddenOnTheScreen)
{
    const Built every = shown();
    const auto printed = [&](const Text& caption) {
        every.controls->options("opt").change([&](OptionGroup& options) { options.setCaption(7, caption); });
        platform.settle();
        return printedOn(every.widget(), every.widget().size());
    };
    EXPECT_NE(printed(u"D"), printed(u"EEEE"));
    every.controls->options("opt").change([](OptionGroup& options) { options.setVisible(7, false); });
    EXPECT_EQ(printed(u"D"), printed(u"EEEE"));
}

// Prints to a file without asking.
struct ToFile : Printing {
    QTemporaryFile file;

    bool ask(QPrinter& printer, QWidget&) override
    {
        EXPECT_TRUE(file.open());
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file.fileName());
        return true;
    }

    QSize paperFor(QSize window)
    {
        QWidget widget;
        widget.resize(window);
        EXPECT_EQ(choose(widget), 1);
        print(widget);
        static const QRegularExpression paper(QStringLiteral(R"(/MediaBox \[0 0 (\d+)\S* (\d+))"));
        const auto found = paper.match(QString::fromLatin1(file.readAll()));
        file.close();
        return {found.captured(1).toInt(), found.captured(2).toInt()};
    }
};

TEST_F(PaperTest, IsAsWideOrTallAsTheWindow)
{
    ToFile printing;
    const QSize wide = printing.paperFor({400, 300}), tall = printing.paperFor({300, 400});
    EXPECT_GT(wide.width(), wide.height());
    EXPECT_EQ(tall, wide.transposed());
}

} // namespace

} // namespace plotvue
