// In the size in which a window opens, no label and no title of its charts is left out or cut off.
#include "desktop/samples_fixture.h"
#include "platform/desktop/chart/chart_widget.h"
#include "platform/desktop/grid.h"

#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>

namespace plotvue {

namespace {

constexpr double leastPoints = 7.5;

class FirstSize : public test::SamplesTest, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override
    {
        const QSize room = QGuiApplication::primaryScreen()->availableSize();
        ASSERT_GE(room.width(), 1280) << "a screen on which every window opens in its own size";
        ASSERT_GE(room.height(), 720);
    }

    // The window that the capture opens, or the charts of its first row.
    Window* opened(const QString& capture)
    {
        QGuiApplication::clipboard()->setText(capture);
        app.start();
        Window* window = windows().front();
        auto* grid = window->findChild<GridTable*>();
        if (!grid || window->findChild<ChartWidget*>())
            return window;
        emit grid->rowChosen(1);
        for (Window* other : windows())
            if (other != window)
                return other;
        return nullptr;
    }

    static void expectEveryPointLabelled(const ChartWidget& chart)
    {
        const chart::Layout& layout = chart.chartLayout();
        std::set<int> labelled;
        std::map<double, double> ends; // of the labels so far, by the top of their line
        for (const chart::SlotLabel& label : layout.labels) {
            const chart::Box& box = label.name.box;
            EXPECT_FALSE(label.name.text.empty());
            EXPECT_LE(box.bottom(), chart.height());
            labelled.insert(label.slot);
            if (layout.slanted)
                continue;
            EXPECT_LE(box.right(), chart.width());
            EXPECT_GT(box.left, ends[box.top]) << "label of point " << label.slot;
            ends[box.top] = box.right();
        }
        EXPECT_EQ(labelled.size(), static_cast<std::size_t>(chart.points()));
        const QFont font = ChartFonts(chart.font(), chart.logicalDpiY(), chart).font(layout.labelRole);
        EXPECT_GE(font.pointSizeF(), leastPoints);
    }

    static void expectWholeTitles(const ChartWidget& chart)
    {
        for (const chart::Title& title : chart.chartLayout().titles)
            EXPECT_EQ(title.text.find(u'\u2026'), Text::npos) << toQString(title.text).toStdString();
    }

    static void expectWhole(const Window& window)
    {
        const auto charts = window.findChildren<ChartWidget*>();
        EXPECT_FALSE(charts.isEmpty());
        for (const ChartWidget* chart : charts) {
            expectEveryPointLabelled(*chart);
            expectWholeTitles(*chart);
        }
    }
};

TEST_P(FirstSize, EveryPointHasItsLabelWhateverIsChosen)
{
    const Window* window = opened(sample(GetParam()));
    ASSERT_NE(window, nullptr);
    expectWhole(*window);
    const auto options = window->findChildren<QRadioButton*>();
    for (QRadioButton* period : options)
        for (QRadioButton* type : options) {
            SCOPED_TRACE(period->text().toStdString() + ", " + type->text().toStdString());
            period->click();
            type->click();
            expectWhole(*window);
        }
}

INSTANTIATE_TEST_SUITE_P(Samples, FirstSize, testing::ValuesIn(test::samples()),
                         [](const auto& sample) { return sample.param; });

using FirstSizeOf = FirstSize;

TEST_F(FirstSizeOf, ThirtyCharactersOfACustomersNameAreWhole)
{
    QString capture = sample("monthtomonth");
    static const QRegularExpression name(QStringLiteral("(RANK:  1.{11}).{30}"));
    capture.replace(name, QStringLiteral("\\1NORTHWESTERN CONSOLIDATED FARM"));
    const Window* window = opened(capture);
    const auto* chart = window->findChild<ChartWidget*>();
    ASSERT_TRUE(chart::titlesInOneLine(chart->content()).find(u"CONSOLIDATED FARM") != Text::npos);
    expectWhole(*window);
}

} // namespace

} // namespace plotvue
