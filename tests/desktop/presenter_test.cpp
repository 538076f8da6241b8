// When windows appear on the screen, how the clipboard is read, and printing.
#include "app/application.h"
#include "desktop/chart/chartwidget.h"
#include "desktop/clipboard.h"
#include "desktop/desktopfixture.h"
#include "support/capturebuilder.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QMimeData>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTableView>

namespace plotvue {

namespace {

class PresenterTest : public test::DesktopTest {
protected:
    static bool realised(const Window& form)
    {
        auto& window = static_cast<DesktopWindow&>(form.native());
        return window.hasWidget() && window.widget().internalWinId() != 0;
    }

    static Text productScreen()
    {
        test::CaptureBuilder capture;
        capture.put(1, 1, u"QXM31H          10")
            .put(2, 1, u"Product: 1234567890 Lawn mower")
            .put(4, 1, u"-----");
        capture.put(5, 1, u"JUN99       300      1000       400");
        return capture.text();
    }

    static void copy(const Text& text)
    {
        QGuiApplication::clipboard()->setText(
            QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size())));
    }

    Application app{platform};
};

TEST_F(PresenterTest, StartWithACaptureNeverCreatesTheStartUpWindow)
{
    copy(productScreen());
    app.start();
    const Window& product = *app.window("frmProduct");
    ASSERT_TRUE(product.visible());
    EXPECT_FALSE(realised(product)) << "before the handlers have returned";
    platform.settle();
    EXPECT_TRUE(realised(product));
    EXPECT_TRUE(static_cast<DesktopWindow&>(product.native()).widget().isVisible());
    EXPECT_FALSE(static_cast<DesktopWindow&>(app.window("startup")->native()).hasWidget());
}

TEST_F(PresenterTest, StartUpWindowIsVisibleUnderTheMessage)
{
    QGuiApplication::clipboard()->clear();
    app.start();
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_TRUE(realised(*app.window("startup")));
    platform.settle();
    EXPECT_TRUE(static_cast<DesktopWindow&>(app.window("startup")->native()).widget().isVisible());
}

TEST_F(PresenterTest, EventLoopShowsAndHidesWindowsByItself)
{
    const Built every = build();
    every.window->show();
    EXPECT_FALSE(static_cast<DesktopWindow&>(*every.window).hasWidget());
    QCoreApplication::processEvents();
    EXPECT_TRUE(every.widget().isVisible());
    platform.settle();
    EXPECT_TRUE(every.widget().isVisible());
    every.window->hide();
    EXPECT_TRUE(every.widget().isVisible());
    QCoreApplication::processEvents();
    EXPECT_FALSE(every.widget().isVisible());
}

TEST_F(PresenterTest, WindowIsPaintedOnceWhenItAppears)
{
    struct Paintings : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint;
            return false;
        }
    };
    const Built every = build();
    Paintings paintings;
    every.widget().findChild<ChartWidget*>()->installEventFilter(&paintings);
    every.window->show();
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(paintings.count, 1);
}

TEST_F(PresenterTest, WindowReappearsWhereItWas)
{
    const Built every = shown();
    every.widget().move(120, 90);
    const QPoint position = every.widget().pos();
    every.window->hide();
    platform.settle();
    every.window->show();
    platform.settle();
    EXPECT_EQ(every.widget().pos(), position);
}

TEST_F(PresenterTest, MinimisedWindowIsRestoredWhenShown)
{
    const Built every = build();
    for (const bool hidden : {false, true}) {
        every.window->show();
        platform.settle();
        every.widget().showMinimized();
        if (hidden)
            every.window->hide();
        platform.settle();
        every.window->show();
        platform.settle();
        EXPECT_TRUE(every.widget().isVisible());
        EXPECT_FALSE(every.widget().isMinimized());
    }
}

TEST_F(PresenterTest, RebuiltWindowAppearsWhereThePreviousOneWas)
{
    Built every = shown();
    const QPoint place(173, 91);
    every.widget().setGeometry(QRect(place, every.widget().size()));
    every.window->hide();
    platform.settle();

    every = shown();
    EXPECT_EQ(every.widget().geometry().topLeft(), place);
}

TEST_F(PresenterTest, TheClipboardIsReadOncePerEvent)
{
    copy(u"a");
    EXPECT_EQ(platform.clipboardText(), u"a");
    copy(u"b");
    EXPECT_EQ(platform.clipboardText(), u"a");
    QCoreApplication::processEvents();
    EXPECT_EQ(platform.clipboardText(), u"b");
}

TEST_F(PresenterTest, PicturesOnTheClipboardAreNotText)
{
    QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_EQ(platform.clipboardText(), u"");
}

TEST_F(PresenterTest, PrintsAsVectorsOnWhite)
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
    EXPECT_TRUE(file.data().startsWith("%PDF"));
    EXPECT_FALSE(file.data().contains("DCTDecode"));
    EXPECT_EQ(window.palette(), before);
}

TEST_F(PresenterTest, PaperIsWhiteForEveryTheme)
{
    const Built every = shown();
    WindowWidget& window = every.widget();
    QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(dark);
    QImage paper(window.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    {
        QPainter painter(&paper);
        drawOnPaper(window, painter, paper.rect());
    }
    QApplication::setPalette(light);
    EXPECT_EQ(paper.pixelColor(2, 2), QColor(Qt::white));
    qint64 sum = 0;
    for (int y = 0; y < paper.height(); ++y)
        for (int x = 0; x < paper.width(); ++x)
            sum += qGray(paper.pixel(x, y));
    EXPECT_GT(sum / (paper.width() * paper.height()), 235);
}

TEST_F(PresenterTest, PrintedRowsStayWithinTheirGrid)
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
        QImage paper(window.size(), QImage::Format_RGB32);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        drawOnPaper(window, painter, paper.rect());
        return paper;
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

TEST_F(PresenterTest, WindowFillsEveryPageAndKeepsItsAspectRatio)
{
    const Built every = shown();
    WindowWidget& window = every.widget();
    const QSize letter(816, 1056), a4(794, 1123); // at 96 dots per inch
    for (const QSize page : {letter, letter.transposed(), a4, a4.transposed()}) {
        QImage paper(page + QSize(200, 200), QImage::Format_RGB32);
        paper.fill(Qt::white);
        {
            QPainter painter(&paper);
            drawOnPaper(window, painter, QRectF(QPointF(0, 0), page));
        }
        const QRect drawn = drawnIn(paper);
        const QSize whole = window.size().scaled(page, Qt::KeepAspectRatio);
        EXPECT_TRUE(QRect(QPoint(0, 0), page).contains(drawn)) << page.width() << 'x' << page.height();
        EXPECT_LE(drawn.width(), whole.width());
        EXPECT_LE(drawn.height(), whole.height());
        EXPECT_GT(drawn.width(), whole.width() * 9 / 10);
        EXPECT_GT(drawn.height(), whole.height() * 9 / 10);
    }
}

} // namespace

} // namespace plotvue
