// From the click on an option to the painted window, without a display.
#include "app/application.h"
#include "platform/desktop/desktopplatform.h"
#include "sample.h"

#include <QApplication>
#include <QClipboard>
#include <QPaintEvent>
#include <QWidget>

#include <benchmark/benchmark.h>

namespace plotvue {

namespace {

class PaintCounter : public QObject {
public:
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

QWidget* shownWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow())
            return window;
    return nullptr;
}

void optionClick(benchmark::State& state)
{
    const Text capture = productCapture();
    QApplication::clipboard()->setText(QString::fromStdU16String(capture));
    DesktopPlatform platform;
    Application application(platform);
    application.start();
    platform.settle();
    QWidget* window = shownWindow();
    Form* product = application.window("frmProduct");
    if (!window || !product->loaded()) {
        state.SkipWithError("the product window is not shown");
        return;
    }
    window->resize(1280, 800);
    PaintCounter paints;
    for (QWidget* widget : window->findChildren<QWidget*>())
        widget->installEventFilter(&paints);
    QApplication::processEvents();

    int index = 0;
    for (auto _ : state) {
        index = 1 - index;
        const int before = paints.count;
        product->view().choose(state.range(0) ? "opt12" : "optSales", index);
        while (paints.count == before)
            QApplication::processEvents();
    }
}
BENCHMARK(optionClick)->ArgName("period")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace plotvue
