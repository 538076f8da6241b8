// Presses that follow a click too soon, in a window that the click has brought up. The tests set the times of
// the events, so that they need not wait.
#include "desktop/samplesfixture.h"
#include "support/windows.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QStyleHints>
#include <QWindow>

namespace plotvue {

namespace {

class DoubleClicksTest : public test::SamplesTest {
protected:
    WindowWidget* shownWindow(Name name)
    {
        windows();
        WindowWidget& widget = static_cast<DesktopWindow&>(test::windowNamed(app, name)->native()).widget();
        return widget.isVisible() ? &widget : nullptr;
    }

    // Two windows, one over the other. Their buttons write to `ran` what was clicked.
    struct Two {
        Built one, other;
    };
    Two twoWindows() { return {shown(), shown()}; }

    static QPushButton& go(const Built& built) { return *built.widget().findChild<QPushButton*>("cmdGo"); }

    // Sends a mouse event over the middle of the button. Its place on the screen is the same for every
    // window, moved by `aside`.
    void send(QEvent::Type type, const QPushButton& over, QPoint aside = {},
              Qt::MouseButton with = Qt::LeftButton)
    {
        QWindow* window = over.window()->windowHandle();
        const QPointF local = over.mapTo(over.window(), over.rect().center());
        const bool down = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, local, QPoint(700, 400) + aside, with, down ? with : Qt::NoButton,
                          Qt::NoModifier);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(window, &event);
    }

    void click(const QPushButton& over, QPoint aside = {})
    {
        send(QEvent::MouseButtonPress, over, aside);
        send(QEvent::MouseButtonRelease, over, aside);
    }

    using Ran = std::vector<std::string>;

    // The settings of the system for double-clicks, in milliseconds and pixels.
    const quint64 interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const int distance = QGuiApplication::styleHints()->mouseDoubleClickDistance();
    const quint64 soon = interval / 2;
    quint64 time = 10'000;
};

TEST_F(DoubleClicksTest, AreOneClickIfAnotherWindowComesInBetween)
{
    for (const quint64 apart : {soon, interval - 1}) {
        const Two two = twoWindows();
        click(go(two.one));
        EXPECT_EQ(ran, Ran{"cmdGo 0"});
        time += apart;
        click(go(two.other));
        EXPECT_EQ(ran, Ran{"cmdGo 0"}) << apart;
        EXPECT_FALSE(go(two.other).isDown());
        click(go(two.other));
        EXPECT_EQ(ran, (Ran{"cmdGo 0", "cmdGo 0"})) << "a third click";
        ran.clear();
        time += 10 * interval;
    }
}

TEST_F(DoubleClicksTest, ReachNothingWithTheirSecondPressAndItsRelease)
{
    struct Heard : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += dynamic_cast<QMouseEvent*>(event) != nullptr;
            return false;
        }
    } heard;
    const Two two = twoWindows();
    two.other.widget().windowHandle()->installEventFilter(&heard);
    click(go(two.one));
    time += soon;
    click(go(two.other));
    EXPECT_EQ(heard.count, 0);
    click(go(two.other));
    EXPECT_EQ(heard.count, 2);
}

TEST_F(DoubleClicksTest, AreTwoClicksInOneWindow)
{
    const Two two = twoWindows();
    click(go(two.one));
    time += soon;
    click(go(two.one));
    EXPECT_EQ(ran.size(), 2U);
}

TEST_F(DoubleClicksTest, AreTwoClicksAfterTheSystemsTime)
{
    const Two two = twoWindows();
    click(go(two.one));
    time += interval;
    click(go(two.other));
    EXPECT_EQ(ran.size(), 2U);
}

TEST_F(DoubleClicksTest, AreTwoClicksAtTwoPlaces)
{
    const Two two = twoWindows();
    const int beyond = distance + 1;
    const std::pair<QPoint, std::size_t> cases[]{{{distance, -distance}, 1}, {{-distance, distance}, 1},
                                                 {{beyond, 0}, 2},           {{-beyond, 0}, 2},
                                                 {{0, beyond}, 2},           {{0, -beyond}, 2}};
    for (const auto& [aside, clicks] : cases) {
        click(go(two.one));
        time += soon;
        click(go(two.other), aside);
        EXPECT_EQ(ran.size(), clicks) << aside.x() << ", " << aside.y();
        ran.clear();
        time += 10 * interval;
    }
}

TEST_F(DoubleClicksTest, AreTwoClicksWithTwoButtons)
{
    const Two two = twoWindows();
    send(QEvent::MouseButtonPress, go(two.one), {}, Qt::RightButton);
    send(QEvent::MouseButtonRelease, go(two.one), {}, Qt::RightButton);
    time += soon;
    click(go(two.other));
    EXPECT_EQ(ran.size(), 1U);
}

TEST_F(DoubleClicksTest, MayBeToldAsSuch)
{
    for (const bool alone : {false, true}) {
        const Two two = twoWindows();
        click(go(two.one));
        time += soon;
        if (!alone)
            send(QEvent::MouseButtonPress, go(two.other));
        send(QEvent::MouseButtonDblClick, go(two.other));
        EXPECT_FALSE(go(two.other).isDown());
        send(QEvent::MouseButtonRelease, go(two.other));
        EXPECT_EQ(ran.size(), 1U);
        ran.clear();
        time += 10 * interval;
    }
}

TEST_F(DoubleClicksTest, MayLackARelease)
{
    const Two two = twoWindows();
    click(go(two.one));
    time += soon;
    send(QEvent::MouseButtonPress, go(two.other));
    click(go(two.other));
    EXPECT_EQ(ran.size(), 2U);
}

TEST_F(DoubleClicksTest, DoNotStopKeysAndAssistiveTechnology)
{
    const Two two = twoWindows();
    click(go(two.one));
    time += soon;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(&go(two.other), &space);
    }
    EXPECT_EQ(ran.size(), 2U);
    go(two.other).click();
    EXPECT_EQ(ran.size(), 3U);
}

TEST_F(DoubleClicksTest, OnExitDoNotEndTheProgram)
{
    copySample("product");
    app.start();
    WindowWidget* chart = shownWindow("frmProduct");
    ASSERT_NE(chart, nullptr);
    click(*chart->findChild<QPushButton*>("cmdExit"));
    WindowWidget* start = shownWindow("startup");
    ASSERT_NE(start, nullptr);
    const QPushButton& exit = *start->findChild<QPushButton*>("Command2");
    time += soon;
    click(exit);
    EXPECT_TRUE(platform.endings.empty());
    time += 10 * interval;
    click(exit);
    EXPECT_EQ(platform.endings, Ran{"end"});
}

// The first press closes the box. So when the second press comes, the window of the first no longer exists.
TEST_F(DoubleClicksTest, DoNotReachTheWindowUnderABoxThatTheyClose)
{
    const Two two = twoWindows();
    {
        const Built box = shown();
        click(go(box));
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    time += soon;
    click(go(two.one));
    EXPECT_EQ(ran.size(), 1U);
}

} // namespace

} // namespace plotvue
