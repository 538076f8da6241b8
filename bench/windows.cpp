// Measures the time from a user action to the painted window, compared with another repaint of the same
// window. This program itself owns the clipboard, so no other process delays the result.
#include "windows.h"

#include "app/application.h"
#include "captures.h"
#include "desktop/chart/qtext.h"
#include "desktop/desktopplatform.h"
#include "desktop/desktopwindow.h"
#include "rounds.h"
#include "support/windows.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>

namespace plotvue {

namespace {

// A running PlotVue that was started with the capture on the clipboard.
class Desk : public QObject {
public:
    explicit Desk(const Text& capture) : application_(platform_)
    {
        qApp->installEventFilter(this);
        QApplication::clipboard()->setText(toQString(capture));
        application_.start();
    }

    Controls& controls(Name window) { return test::windowNamed(application_, window)->controls(); }
    bool visible(Name window) { return test::windowNamed(application_, window)->visible(); }

    // Runs the action and returns when that window has been painted.
    template <typename Action>
    void untilPainted(Name window, Action action)
    {
        painted_ = nullptr;
        action();
        const QWidget* awaited = &widget(window);
        while (painted_ != awaited)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    void repaint(Name window)
    {
        untilPainted(window, [&] {
            widget(window).update();
            for (QWidget* each : widget(window).findChildren<QWidget*>())
                each->update();
        });
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType())
            painted_ = static_cast<QWidget*>(object)->window();
        return false;
    }

private:
    QWidget& widget(Name window)
    {
        return static_cast<DesktopWindow&>(test::windowNamed(application_, window)->native()).widget();
    }

    DesktopPlatform platform_;
    Application application_;
    const QWidget* painted_ = nullptr;
};

void optionClick(const char* group, const char* name, int rounds)
{
    constexpr Name window = "frmProduct";
    Desk desk(sampleCapture("product.txt"));
    desk.untilPainted(window, [] {});
    int index = 0;
    measure({.name = name,
             .unit = "ms",
             .nanosecondsAUnit = milliseconds,
             .run =
                 [&] {
                     desk.untilPainted(window,
                                       [&] { desk.controls(window).choose(group, index = 1 - index); });
                 },
             .referenceName = "repaint",
             .reference = [&] { desk.repaint(window); }},
            rounds);
}

// Always steps from the 50th entry to the 51st, because the files of the list are read from their beginning.
void down(int rounds)
{
    constexpr Name list = "frmM2Mpft", window = "frmM2MpftA";
    Desk desk(rankedCapture());
    desk.untilPainted(list, [] {});
    const auto open = [&] { desk.controls(list).clickRow("MSFlexGrid1", 50); };
    desk.untilPainted(window, open);
    const auto reopen = [&] {
        open();
        QApplication::processEvents(); // raises the window, which is not counted
    };
    measure({.name = "Down in a list of 100",
             .unit = "ms",
             .nanosecondsAUnit = milliseconds,
             .run = [&] { desk.untilPainted(window, [&] { desk.controls(window).press("cmdNext"); }); },
             .referenceName = "repaint",
             .reference = [&] { desk.repaint(window); },
             .prepare = reopen},
            rounds);
}

void fillList(int rounds)
{
    constexpr Name list = "frmM2Mpft", startup = "startup";
    Desk desk(rankedCapture());
    desk.untilPainted(list, [] {});
    const auto refresh = [&] { desk.controls(startup).press("Command1"); };
    const auto leave = [&] {
        if (desk.visible(startup))
            return;
        desk.untilPainted(startup, [&] { desk.controls(list).press("cmdExit"); });
    };
    measure({.name = "Refresh to a list of 100",
             .unit = "ms",
             .nanosecondsAUnit = milliseconds,
             .run = [&] { desk.untilPainted(list, refresh); },
             .referenceName = "repaint",
             .reference = [&] { desk.repaint(list); },
             .prepare = leave},
            rounds);
}

} // namespace

void measureWindows(int rounds)
{
    optionClick("optSales", "click on a data type", rounds);
    optionClick("opt12", "click on a period", rounds);
    down(rounds);
    fillList(rounds);
}

} // namespace plotvue
