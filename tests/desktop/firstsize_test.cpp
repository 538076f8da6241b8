// In the initial size of a window, no label and no title of its charts is left out or elided.
#include "desktop/chart/chartwidget.h"
#include "desktop/chart/qtext.h"
#include "desktop/grid.h"
#include "desktop/samplesfixture.h"
#include "support/windows.h"

#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>

namespace plotvue {

namespace {

constexpr double minPoints = 7.5;

class FirstSize : public test::SamplesTest, public testing::WithParamInterface<std::string> {
protected:
    ~FirstSize() override { QApplication::setFont(usual_); }

    void SetUp() override
    {
        const QScreen& screen = *QGuiApplication::primaryScreen();
        ASSERT_GE(screen.availableSize().width(), 1280)
            << "the test needs a screen on which every window opens in its full size";
        ASSERT_GE(screen.availableSize().height(), 720);
        const double requested = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
        ASSERT_EQ(screen.devicePixelRatio(), requested);
    }

    void setFontSize(double points)
    {
        QFont font = usual_;
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }

    // The window that the capture opens; for a list without a chart, the chart window of its first row.
    WindowWidget* opened(const QString& capture)
    {
        QGuiApplication::clipboard()->setText(capture);
        app.start();
        WindowWidget* window = windows().front();
        auto* grid = window->findChild<GridTable*>();
        if (!grid || window->findChild<ChartWidget*>())
            return window;
        emit grid->rowChosen(1);
        for (WindowWidget* other : windows())
            if (other != window)
                return other;
        return nullptr;
    }

    static void expectEveryPointLabelled(const ChartWidget& chart, const Layout& layout)
    {
        std::set<int> labelled;
        std::map<double, double> ends; // for the top of each line, the right end of its last label
        for (const SlotLabel& label : layout.labels) {
            const Rect& box = label.name.box;
            EXPECT_FALSE(label.name.text.empty());
            EXPECT_TRUE(isWhole(label.name.text));
            EXPECT_LE(box.bottom(), chart.height());
            labelled.insert(label.slot);
            if (layout.slanted)
                continue;
            EXPECT_LE(box.right(), chart.width());
            EXPECT_GT(box.left, ends[box.top]) << "label of point " << label.slot;
            ends[box.top] = box.right();
        }
        EXPECT_GT(chart.points(), 0);
        EXPECT_EQ(labelled.size(), static_cast<std::size_t>(chart.points()));
        const QFont font = ChartFonts(chart.font(), chart.logicalDpiY(), chart).font(layout.labelRole);
        EXPECT_GE(font.pointSizeF(), minPoints - 1e-9);
    }

    static std::size_t labelled(const WindowWidget& window)
    {
        std::set<int> labelledSlots;
        for (const SlotLabel& label : window.findChild<ChartWidget*>()->chartLayout().labels)
            labelledSlots.insert(label.slot);
        return labelledSlots.size();
    }

    static bool isWhole(TextSpan text) { return text.find(u'\u2026') == TextSpan::npos; }

    // The layout of the same chart on paper with 300 dots per inch.
    static Layout onPaper(const ChartWidget& chart)
    {
        QImage paper(1, 1, QImage::Format_RGB32);
        paper.setDotsPerMeterX(11811);
        paper.setDotsPerMeterY(11811);
        return layoutChart(chart.plotData(), {double(chart.width()), double(chart.height())},
                           ChartFonts(chart.font(), chart.logicalDpiY(), paper), 0);
    }

    static void expectWhole(const WindowWidget& window)
    {
        const auto charts = window.findChildren<ChartWidget*>();
        EXPECT_FALSE(charts.isEmpty());
        for (const ChartWidget* chart : charts) {
            expectEveryPointLabelled(*chart, chart->chartLayout());
            expectEveryPointLabelled(*chart, onPaper(*chart));
            for (const Title& title : chart->chartLayout().titles)
                EXPECT_TRUE(isWhole(title.text)) << toQString(title.text).toStdString();
        }
    }

    static void expectWholeForEveryChoice(const WindowWidget& window)
    {
        forEveryChoice(window, [&] { expectWhole(window); });
    }

private:
    QFont usual_ = QApplication::font();
};

TEST_P(FirstSize, EveryPointHasItsLabelForEveryChoice)
{
    const WindowWidget* window = opened(sample(GetParam()));
    ASSERT_NE(window, nullptr);
    expectWholeForEveryChoice(*window);
}

TEST_P(FirstSize, AlsoWithAFontOf11Points)
{
    setFontSize(11);
    const WindowWidget* window = opened(sample(GetParam()));
    ASSERT_NE(window, nullptr);
    expectWholeForEveryChoice(*window);
}

TEST_P(FirstSize, AlsoWithAFontOf12Points)
{
    setFontSize(12);
    const WindowWidget* window = opened(sample(GetParam()));
    ASSERT_NE(window, nullptr);
    expectWholeForEveryChoice(*window);
}

TEST_P(FirstSize, AlsoOnAScreenOf960By540) // a screen of 1920 by 1080 pixels at 200 %
{
    WindowWidget* window = opened(sample(GetParam()));
    ASSERT_NE(window, nullptr);
    window->resize(window->size().boundedTo({940, 490}));
    QCoreApplication::processEvents();
    expectWholeForEveryChoice(*window);
}

TEST_P(FirstSize, TheChartsOfEveryRowHaveTheirFigures)
{
    QPointer<WindowWidget> window = opened(sample(GetParam()));
    ASSERT_TRUE(window);
    const auto buttons = window->findChildren<QPushButton*>();
    const auto down = std::ranges::find(buttons, QStringLiteral("Down"), &QPushButton::text);
    if (down == buttons.end())
        return; // the window has no button Down, so it is no drill-down window
    int rows = 0;
    for (; window && window->isVisible(); ++rows) {
        forEveryChoice(*window, [&] {
            for (const ChartWidget* chart : window->findChildren<ChartWidget*>())
                EXPECT_FALSE(chart->chartLayout().values.empty())
                    << toQString(titlesInOneLine(chart->chart())).toStdString();
        });
        (*down)->click();
        windows();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_GT(rows, 3);
}

INSTANTIATE_TEST_SUITE_P(Samples, FirstSize, testing::ValuesIn(test::samples()),
                         [](const auto& sample) { return sample.param; });

TEST_F(FirstSize, TwentyFourMonthsHaveTwentyFiveLabels)
{
    const WindowWidget* window = opened(sample("product"));
    test::windowNamed(app, "frmProduct")->controls().choose("opt12", 1);
    EXPECT_EQ(labelled(*window), 25U);
}

TEST_F(FirstSize, FiveYearsHaveSixtyLabels)
{
    const WindowWidget* window = opened(sample("glhistory"));
    test::windowNamed(app, "frmGLarch")->controls().choose("opt12", 4);
    EXPECT_EQ(labelled(*window), 60U);
}

TEST_F(FirstSize, TheMonthsOfARowHaveThirteenLabels)
{
    EXPECT_EQ(labelled(*opened(sample("profitrank"))), 13U);
}

TEST_F(FirstSize, ACustomerNameOfThirtyCharactersIsNotElided)
{
    QString capture = sample("monthtomonth");
    static const QRegularExpression name(QStringLiteral("(RANK:  1.{11}).{30}"));
    capture.replace(name, QStringLiteral("\\1NORTHWESTERN CONSOLIDATED FARM"));
    const WindowWidget* window = opened(capture);
    const auto* chart = window->findChild<ChartWidget*>();
    ASSERT_TRUE(titlesInOneLine(chart->chart()).find(u"CONSOLIDATED FARM") != Text::npos);
    expectWhole(*window);
}

} // namespace

} // namespace plotvue
