// When windows appear on the screen, and how the clipboard is read.
#include "app/application.h"
#include "desktop/chart/chartwidget.h"
#include "desktop/clipboard.h"
#include "desktop/desktopfixture.h"
#include "support/capturebuilder.h"
#include "support/windows.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace plotvue {

namespace {

class PresenterTest : public test::DesktopTest {
protected:
    // The widget that displays the controls; null while there is none.
    static const WindowWidget* widgetOf(const Controls& controls)
    {
        for (const QWidget* widget : QApplication::topLevelWidgets())
            if (const auto* window = qobject_cast<const WindowWidget*>(widget);
                window && &window->controls() == &controls)
                return window;
        return nullptr;
    }

    static bool realised(const Window& window)
    {
        const WindowWidget* widget = widgetOf(window.controls());
        return widget && widget->internalWinId() != 0;
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
    const Window& product = *test::windowNamed(app, "frmProduct");
    ASSERT_TRUE(product.visible());
    EXPECT_FALSE(realised(product)) << "before the handlers have returned";
    platform.settle();
    EXPECT_TRUE(realised(product));
    EXPECT_TRUE(static_cast<DesktopWindow&>(product.native()).widget().isVisible());
    EXPECT_EQ(widgetOf(test::windowNamed(app, "startup")->controls()), nullptr);
}

TEST_F(PresenterTest, StartUpWindowIsVisibleUnderTheMessage)
{
    QGuiApplication::clipboard()->clear();
    app.start();
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_TRUE(realised(*test::windowNamed(app, "startup")));
    platform.settle();
    EXPECT_TRUE(
        static_cast<DesktopWindow&>(test::windowNamed(app, "startup")->native()).widget().isVisible());
}

TEST_F(PresenterTest, EventLoopShowsAndHidesWindowsByItself)
{
    const Built every = build();
    every.window->show();
    EXPECT_EQ(widgetOf(*every.controls), nullptr);
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
    const Built every = build();
    test::Paintings paintings;
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
    platform.run([this] {
        EXPECT_EQ(platform.clipboardText(), u"a");
        copy(u"b");
        EXPECT_EQ(platform.clipboardText(), u"a");
    });
    // The next event may come before the event loop runs again.
    platform.run([this] { EXPECT_EQ(platform.clipboardText(), u"b"); });
}

TEST_F(PresenterTest, PicturesOnTheClipboardAreNotText)
{
    QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_EQ(platform.clipboardText(), u"");
}

TEST_F(PresenterTest, WindowThatIsShownAgainComesToTheFront)
{
    const Built one = build(), other = build();
    const auto isInFront = [this](const Built& built) {
        built.window->show();
        platform.settle();
        QCoreApplication::processEvents();
        return built.widget().isActiveWindow();
    };
    EXPECT_TRUE(isInFront(one));
    EXPECT_TRUE(isInFront(other));
    EXPECT_TRUE(isInFront(one)) << "it was visible";
    other.window->hide();
    EXPECT_TRUE(isInFront(other));
}

} // namespace

} // namespace plotvue
