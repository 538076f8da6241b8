// When a screen is copied, terminals drop the blanks at the ends of lines or fill every line with blanks. The
// windows look the same in both cases.
#include "desktop/chart/chartwidget.h"
#include "desktop/chart/qtext.h"
#include "desktop/grid.h"
#include "desktop/samplesfixture.h"
#include "support/windows.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace plotvue {

namespace {

constexpr int columns = 80, maxRows = 100;

enum class Blanks { Dropped, Added };

QString copied(const QString& screen, Blanks blanks)
{
    QStringList lines = screen.split(QStringLiteral("\r\n"));
    for (QString& line : lines) {
        while (line.endsWith(u' '))
            line.chop(1);
        if (blanks == Blanks::Added)
            line = line.leftJustified(columns);
    }
    return lines.join(u'\n');
}

class Copies : public test::SamplesTest, public testing::WithParamInterface<std::string> {
protected:
    // Everything that is visible in the windows of the capture, for every choice of options and every row.
    std::vector<std::string> tour(const QString& capture)
    {
        seen_.clear();
        QGuiApplication::clipboard()->setText(capture);
        pressed("startup", "Command1");
        WindowWidget& window = *windows().front();
        forEveryChoice(window, [&] { look(window); });
        for (auto* grid : window.findChildren<GridTable*>()) {
            emit grid->rowChosen(1);
            for (WindowWidget* other : windows())
                if (other != &window)
                    lookAtEveryEntry(*other);
        }
        pressed(window, "Exit");
        EXPECT_FALSE(platform.over()) << testing::PrintToString(platform.endings);
        return seen_;
    }

    void SetUp() override
    {
        QGuiApplication::clipboard()->clear();
        app.start();
        windows();
    }

private:
    void pressed(Name form, Name button)
    {
        test::windowNamed(app, form)->controls().press(button);
        platform.settle();
    }

    void pressed(const WindowWidget& window, const char* caption)
    {
        for (auto* button : window.findChildren<QPushButton*>())
            if (button->text().remove(u'&') == QLatin1String(caption))
                button->click();
        platform.settle();
    }

    void note(const QString& text) { seen_.push_back(text.trimmed().toStdString()); }

    void look(const WindowWidget& window)
    {
        for (const auto* label : window.findChildren<QLabel*>())
            note(label->text());
        for (const auto* line : window.findChildren<QLineEdit*>())
            note(line->text());
        for (const auto* grid : window.findChildren<GridTable*>())
            for (int row = 0; row < grid->model()->rowCount(); ++row)
                for (int column = 0; column < grid->model()->columnCount(); ++column)
                    note(grid->model()->index(row, column).data().toString());
        for (const auto* chart : window.findChildren<ChartWidget*>()) {
            const PlotData& data = chart->plotData();
            note(toQString(titlesInOneLine(chart->chart())));
            for (int point = 0; point < data.pointCount(); ++point)
                note(toQString(data.sentence(point)));
            for (const LegendEntry& entry : chart->chartLayout().legend)
                note(toQString(entry.name.text));
        }
    }

    void lookAtEveryEntry(const WindowWidget& charts)
    {
        const std::size_t messages = platform.messages.size();
        for (int row = 0; platform.messages.size() == messages; ++row) { // until "End of list"
            ASSERT_TRUE(row < maxRows && !platform.over());
            forEveryChoice(charts, [&] { look(charts); });
            pressed(charts, "Down");
        }
    }

    std::vector<std::string> seen_;
};

TEST_P(Copies, LookTheSameWithBlanksDroppedOrAdded)
{
    const QString screen = sample(GetParam());
    const std::vector<std::string> intact = tour(screen);
    EXPECT_GT(intact.size(), 20U);
    for (const Blanks blanks : {Blanks::Dropped, Blanks::Added}) {
        const std::vector<std::string> other = tour(copied(screen, blanks));
        ASSERT_EQ(other.size(), intact.size());
        for (std::size_t i = 0; i < intact.size(); ++i)
            ASSERT_EQ(other[i], intact[i]);
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, Copies, testing::ValuesIn(test::samples()),
                         [](const auto& sample) { return sample.param; });

} // namespace

} // namespace plotvue
