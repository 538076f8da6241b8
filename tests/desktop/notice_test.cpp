// The line above the charts: what it paints, what it announces and what it leaves as it was.
#include "desktop/chart/chartwidget.h"
#include "desktop/desktopfixture.h"
#include "desktop/noticeline.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace plotvue {

namespace {

constexpr TextSpan sentence = u"Another row was chosen. Choose a data type to chart it.";

double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= .04045 ? channel / 12.92 : std::pow((channel + .055) / 1.055, 2.4);
    };
    return .2126 * linear(colour.redF()) + .7152 * linear(colour.greenF()) + .0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + .05) / (std::min(a, b) + .05);
}

// The smallest rectangle that holds every pixel that differs much from the paper.
QRect inkIn(const QImage& image, const QRect& area, const QColor& paper)
{
    QRect ink;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (contrast(image.pixelColor(x, y), paper) > 2)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

double bestContrast(const QImage& image, const QRect& area, const QColor& paper)
{
    double best = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            best = std::max(best, contrast(image.pixelColor(x, y), paper));
    return best;
}

class NoticeTest : public test::DesktopTest {
protected:
    NoticeTest() : every(shown()), line(*every.widget().findChild<NoticeLine*>()) {}

    void say(TextSpan text)
    {
        every.controls->notice.set(Text(text));
        QCoreApplication::processEvents();
    }

    const QWidget& chart() { return *every.widget().findChild<ChartWidget*>(); }

    Built every;
    NoticeLine& line;
};

TEST_F(NoticeTest, IsThereOnlyWhileThereIsSomethingToSay)
{
    EXPECT_FALSE(line.isVisible());
    say(sentence);
    EXPECT_TRUE(line.isVisible());
    say(u"");
    EXPECT_FALSE(line.isVisible());
}

TEST_F(NoticeTest, TheChartGivesWayAndNothingElseMoves)
{
    every.widget().resize(every.widget().minimumSize());
    QCoreApplication::processEvents();
    const QSize window = every.widget().size();
    const int chartHeight = chart().height();
    const auto& button = *every.widget().findChild<QPushButton*>("cmdGo");
    const QPoint place = button.mapTo(&every.widget(), QPoint());
    const QWidget* focused = QApplication::focusWidget();
    say(sentence);
    EXPECT_EQ(every.widget().size(), window);
    EXPECT_EQ(button.mapTo(&every.widget(), QPoint()), place);
    EXPECT_EQ(QApplication::focusWidget(), focused);
    EXPECT_EQ(line.focusPolicy(), Qt::NoFocus);
    every.widget().resize(1000, window.height() + 200);
    QCoreApplication::processEvents();
    const int withNotice = chart().height();
    EXPECT_LT(line.mapTo(&every.widget(), QPoint()).y(), chart().mapTo(&every.widget(), QPoint()).y());
    say(u"");
    EXPECT_GT(chart().height(), withNotice);
    every.widget().resize(window);
    QCoreApplication::processEvents();
    EXPECT_EQ(chart().height(), chartHeight);
}

TEST_F(NoticeTest, IsReadableInEveryThemeAndInsideItsLine)
{
    const QPalette usual = QApplication::palette();
    QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    dark.setColor(QPalette::ToolTipBase, QColor(49, 54, 59));
    dark.setColor(QPalette::ToolTipText, QColor(239, 240, 241));
    for (const QPalette& palette : {usual, dark}) {
        QApplication::setPalette(palette);
        say(sentence);
        const QImage image = line.grab().toImage();
        const double scale = image.devicePixelRatio();
        const QRect all = image.rect();
        const int symbol = int(line.height() * scale); // the symbol is within a square at the left
        const QColor paper = image.pixelColor(all.width() - int(8 * scale), int(3 * scale));
        EXPECT_EQ(paper, palette.color(QPalette::ToolTipBase));
        const QRect inside = all.adjusted(int(3 * scale), int(3 * scale), -int(3 * scale), -int(3 * scale));
        EXPECT_GT(bestContrast(image, inside.intersected(QRect(0, 0, symbol, all.height())), paper), 4.5);
        const QRect text = inside.adjusted(symbol, 0, 0, 0);
        EXPECT_GT(bestContrast(image, text, paper), 4.5);
        const QRect ink = inkIn(image, text, paper);
        const int wanted = int(line.fontMetrics().horizontalAdvance(line.text()) * scale);
        EXPECT_NEAR(ink.width(), wanted, wanted / 20);
        EXPECT_TRUE(text.adjusted(0, 1, 0, -1).contains(ink));
    }
    QApplication::setPalette(usual);
}

TEST_F(NoticeTest, WrapsInANarrowWindow)
{
    say(sentence);
    const int oneLine = line.height();
    const int width = line.fontMetrics().horizontalAdvance(line.text()) / 2;
    NoticeLine narrow(every.controls->notice, nullptr);
    narrow.resize(width, narrow.height());
    narrow.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(narrow.width(), width);
    EXPECT_GT(narrow.height(), oneLine + line.fontMetrics().height());
    const QImage image = narrow.grab().toImage();
    const double scale = image.devicePixelRatio();
    const int margin = int(3 * scale);
    const QRect inside = image.rect().adjusted(margin, margin, -margin, -margin);
    const QColor paper = image.pixelColor(image.width() - int(8 * scale), margin);
    const QRect ink = inkIn(image, inside.adjusted(int(oneLine * scale), 0, 0, 0), paper);
    EXPECT_TRUE(inside.adjusted(0, 1, 0, -1).contains(ink));
    EXPECT_GT(ink.height(), 2 * line.fontMetrics().ascent() * scale);
}

TEST_F(NoticeTest, IsAnAlertToAssistiveTechnology)
{
    say(sentence);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&line);
    EXPECT_EQ(told->role(), QAccessible::AlertMessage);
    EXPECT_EQ(told->text(QAccessible::Name).toStdU16String(), sentence);
}

TEST_F(NoticeTest, IsPrintedWithTheWindow)
{
    const auto printed = [this] {
        QImage paper(every.widget().size(), QImage::Format_RGB32);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        drawOnPaper(every.widget(), painter, paper.rect());
        return paper;
    };
    say(sentence);
    const QRect place(line.mapTo(&every.widget(), QPoint()), line.size());
    const QImage paper = printed();
    const QColor ground = paper.pixelColor(place.right() - 8, place.top() + 3);
    EXPECT_GT(luminance(ground), .8);
    const QRect inside = place.adjusted(line.height(), 3, -3, -3);
    EXPECT_GT(bestContrast(paper, inside, ground), 4.5);
    EXPECT_NEAR(inkIn(paper, inside, ground).width(), line.fontMetrics().horizontalAdvance(line.text()), 20);
}

} // namespace

} // namespace plotvue
