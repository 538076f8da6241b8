// Every window fits a small screen. At any size, no widget overlaps another, extends beyond its parent or is
// cut off.
#include "desktop/chart/chartwidget.h"
#include "desktop/grid.h"
#include "desktop/noticeline.h"
#include "desktop/samplesfixture.h"
#include "support/windows.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace plotvue {

namespace {

constexpr QSize smallScreen{790, 560}; // 800 by 600, without the frame
constexpr QSize roomy{1000, 620};
const Text longestNotice =
    u"This chart does not show the chosen options. Press Refresh to chart the copied screen.";

std::vector<QWidget*> visibleChildren(const QWidget& widget)
{
    std::vector<QWidget*> children;
    for (QObject* child : widget.children())
        if (auto* inner = qobject_cast<QWidget*>(child); inner && inner->isVisible() && !inner->isWindow())
            children.push_back(inner);
    return children;
}

std::string described(const QWidget& widget)
{
    std::string words = widget.metaObject()->className();
    for (const char* property : {"text", "title", "accessibleName"})
        words += ' ' + widget.property(property).toString().toStdString();
    return words;
}

// The minimum size in which the widget shows all its text, or a list or table a few rows.
QSize neededSize(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->wordWrap())
        return {0, label->heightForWidth(label->width())};
    if (const auto* notice = qobject_cast<const NoticeLine*>(&widget))
        return {
            0,
            notice->fontMetrics().boundingRect(notice->textBox(), Qt::TextWordWrap, notice->text()).height() +
                2 * notice->textBox().top()};
    if (qobject_cast<const QGroupBox*>(&widget))
        return widget.minimumSizeHint();
    const int line = widget.fontMetrics().height();
    if (const auto* table = qobject_cast<const GridTable*>(&widget))
        return {20 * table->fontMetrics().averageCharWidth(), 4 * line};
    if (const auto* list = qobject_cast<const QListWidget*>(&widget))
        return {list->sizeHintForColumn(0) + list->verticalScrollBar()->sizeHint().width(), 3 * line};
    if (qobject_cast<const ChartWidget*>(&widget))
        return {280, 220};
    if (qobject_cast<const QLineEdit*>(&widget))
        return {20 * widget.fontMetrics().averageCharWidth(), line};
    return widget.sizeHint();
}

void expectFits(const QWidget& widget)
{
    const std::vector<QWidget*> children = visibleChildren(widget);
    for (const QWidget* child : children) {
        SCOPED_TRACE(described(*child));
        const QSize wanted = neededSize(*child);
        EXPECT_GE(child->width(), wanted.width());
        EXPECT_GE(child->height(), wanted.height());
        EXPECT_TRUE(widget.rect().contains(child->geometry()));
        for (const QWidget* other : children)
            EXPECT_TRUE(other == child || !other->geometry().intersects(child->geometry()))
                << "is overlapped by " << described(*other);
        // A scroll area arranges its children itself, and some may be outside the viewport.
        if (!qobject_cast<const QAbstractScrollArea*>(child))
            expectFits(*child);
    }
}

void expectFits(QWidget& window, QSize size)
{
    SCOPED_TRACE(std::to_string(size.width()) + " x " + std::to_string(size.height()));
    window.resize(size);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), size);
    expectFits(window);
}

class SizesTest : public test::SamplesTest, public testing::WithParamInterface<std::string> {
protected:
    // Expects that every control of the visible windows fits into its window, at the minimum size, at that of
    // the screen and in a roomy window, with and without a notice. Returns the number of windows.
    std::size_t expectAllFit(QSize screen = smallScreen)
    {
        const std::vector<WindowWidget*> shown = windows();
        for (WindowWidget* window : shown) {
            SCOPED_TRACE(window->windowTitle().toStdString());
            const QSize minimum = window->minimumSize();
            EXPECT_LE(minimum.width(), screen.width());
            EXPECT_LE(minimum.height(), screen.height());
            // If the minimum height were smaller, a wrapped label would take the space of a line of a list;
            // on Windows, the window would grow.
            EXPECT_GE(minimum.height(), window->layout()->totalMinimumHeightForWidth(minimum.width()));
            for (const QSize size : {minimum, screen, roomy})
                expectFits(*window, size);
            window->controls().notice.set(longestNotice);
            for (const QSize size : {minimum, screen, roomy})
                expectFits(*window, size);
            window->controls().notice.set({});
        }
        return shown.size();
    }

    void openAll(QSize screen)
    {
        copySample(GetParam());
        app.start();
        EXPECT_EQ(expectAllFit(screen), 1U);
        EXPECT_FALSE(test::windowNamed(app, "startup")->visible());

        auto* grid = windows().front()->findChild<GridTable*>();
        if (!grid || GetParam() == "categoriessalesmen")
            return;
        emit grid->rowChosen(1);
        EXPECT_EQ(expectAllFit(screen), 2U) << "the list and its drill-down window";
    }
};

// All text is 1.5 times as large as long as this object exists.
class LargeFont {
public:
    LargeFont()
    {
        QFont large = usual_;
        large.setPointSizeF(usual_.pointSizeF() * 1.5);
        QApplication::setFont(large);
    }
    LargeFont(const LargeFont&) = delete;
    ~LargeFont() { QApplication::setFont(usual_); }

private:
    QFont usual_ = QApplication::font();
};

TEST_P(SizesTest, WindowsShowAllOfTheirTexts)
{
    openAll(smallScreen);
}

TEST_P(SizesTest, WindowsShowAllOfTheirTextsInALargeFont)
{
    const LargeFont large;
    openAll(roomy);
}

INSTANTIATE_TEST_SUITE_P(Samples, SizesTest, testing::ValuesIn(test::samples()),
                         [](const auto& sample) { return sample.param; });

TEST_F(SizesTest, AListWithALongerTitleThanBeforeFits)
{
    QString shortTitle = sample("pastdue");
    shortTitle.replace("RECEIVABLES, AS OF 10/31/99", "");
    QGuiApplication::clipboard()->setText(shortTitle);
    app.start();
    const int before = windows().front()->minimumHeight();
    windows().front()->findChild<QPushButton*>("cmdExit")->click();
    windows();

    copySample("pastdue");
    windows().front()->findChild<QPushButton*>("Command1")->click();
    EXPECT_EQ(expectAllFit(), 1U);
    EXPECT_GT(windows().front()->minimumHeight(), before);
}

TEST_F(SizesTest, StartUpWindowShowsAllOfItsTexts)
{
    QGuiApplication::clipboard()->clear();
    app.start();
    EXPECT_EQ(expectAllFit(), 1U);
}

TEST_F(SizesTest, StartUpWindowShowsAllOfItsTextsInALargeFont)
{
    const LargeFont large;
    QGuiApplication::clipboard()->clear();
    app.start();
    EXPECT_EQ(expectAllFit(), 1U);
}

} // namespace

} // namespace plotvue
