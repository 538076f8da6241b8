#include "replay/desktopwidgets.h"

#include "desktop/chart/chartwidget.h"
#include "desktop/desktopwindow.h"
#include "desktop/displaytext.h"
#include "desktop/noticeline.h"
#include "platform/gridtext.h"
#include "recording/observed.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include <algorithm>
#include <stdexcept>

namespace plotvue::replay {

namespace {

WindowWidget& widgetOf(const Window& window)
{
    return static_cast<DesktopWindow&>(ownOf(window.native())).widget();
}

template <typename Widget>
Widget& widgetOf(const Window& window, Name name)
{
    auto* found =
        widgetOf(window).findChild<Widget*>(QString::fromLatin1(name.data(), qsizetype(name.size())));
    if (!found)
        throw std::out_of_range("no such widget");
    return *found;
}

// The radio buttons of an option group, in the order of its options.
std::vector<QRadioButton*> buttonsOf(const Window& window, Name group)
{
    std::vector<QRadioButton*> buttons;
    forEachControl(window.controls().declaration.content, [&](const auto& control) {
        if constexpr (requires { control.options; })
            if (control.group == group)
                for (auto* button :
                     widgetOf<QGroupBox>(window, control.name).template findChildren<QRadioButton*>())
                    buttons.push_back(button);
    });
    return buttons;
}

// `value` if the widget displays it correctly, that is as `toBeShown`; otherwise the displayed text.
Text seen(const Text& value, const QString& toBeShown, const QString& shownText)
{
    return shownText == toBeShown ? value : toText(shownText);
}

QString captionOn(const QRadioButton& button)
{
    const QString elided = button.accessibleName();
    return elided.isEmpty() ? button.text().replace(QLatin1String("&&"), QLatin1String("&")) : elided;
}

void lookAt(SeenText& text, const Window& window, Name name)
{
    switch (text.of) {
    case SeenText::Of::Button:
        text.text = toText(widgetOf<QPushButton>(window, name).text());
        break;
    case SeenText::Of::Label:
        text.text = seen(text.text, displayText(text.text), widgetOf<QLabel>(window, name).text());
        break;
    case SeenText::Of::TextBox: {
        const auto& box = widgetOf<QLineEdit>(window, name);
        // The toolkit limits how many characters a text box displays.
        text.text = seen(text.text, displayTextOnOneLine(text.text).left(box.maxLength()), box.text());
        break;
    }
    }
}

void lookAt(SeenList& items, const Window& window, Name name)
{
    const auto& list = widgetOf<QListWidget>(window, name);
    items.clear();
    for (int row = 0; row < list.count(); ++row)
        items.push_back(toText(list.item(row)->text()));
}

void lookAt(OptionGroup& group, const Window& window, Name name)
{
    const auto buttons = buttonsOf(window, name);
    group.chosen.clear();
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        OptionGroup::Entry& option = group.options.at(i);
        option.caption = seen(option.caption, displayTextOnOneLine(option.caption), captionOn(*buttons[i]));
        option.visible = !buttons[i]->isHidden();
        if (buttons[i]->isChecked())
            group.chosen.push_back(option.index);
    }
    std::ranges::sort(group.chosen);
}

void lookAt(Grid& grid, const Window& window, Name name)
{
    const QAbstractItemModel& model = *widgetOf<QTableView>(window, name).model();
    const Grid wanted = grid;
    QStringList headings;
    for (int column = 0; column < model.columnCount(); ++column)
        headings += model.headerData(column, Qt::Horizontal).toString();
    QStringList wantedHeadings;
    for (const Text& heading : headingsOf(wanted))
        wantedHeadings += toQString(cellText(heading));
    grid.format = seen(wanted.format, wantedHeadings.join(u'|'), headings.join(u'|'));
    grid.columns = model.columnCount();
    grid.setRows(model.rowCount() + 1);
    for (int row = 1; row < grid.rows; ++row)
        for (int column = 0; column < grid.columns; ++column) {
            const bool known = row < wanted.rows && column < wanted.columns;
            const Text value = known ? wanted.cell(row, column) : Text();
            grid.setCell(
                row, column,
                seen(value, toQString(cellText(value)), model.index(row - 1, column).data().toString()));
        }
}

// Empties the chart if the widget shows another chart, or arranges it differently than a new widget would.
void lookAt(Chart& chart, const Window& window, Name name)
{
    const auto& widget = widgetOf<ChartWidget>(window, name);
    ChartWidget fresh;
    fresh.setFont(widget.font());
    fresh.resize(widget.size());
    fresh.setChart(chart);
    if (fresh.chartLayout() != widget.chartLayout() || widget.chart() != chart)
        chart = {};
}

} // namespace

SeenWindow seenOnWidgets(const Window& window)
{
    SeenWindow seen = seenIn(window.controls());
    seen.caption = toText(widgetOf(window).windowTitle());
    const auto& notice = *widgetOf(window).findChild<NoticeLine*>();
    seen.notice = notice.isHidden() ? Text() : toText(notice.text());
    for (auto& named : seen.controls)
        std::visit([&](auto& control) { lookAt(control, window, named.first); }, named.second);
    return seen;
}

void pressWidget(const Window& window, Name button)
{
    widgetOf<QPushButton>(window, button).click();
}

void chooseWidget(const Window& window, Name group, int index)
{
    const auto& options = window.controls().options(group)->options;
    const auto at = std::ranges::find(options, index, &OptionGroup::Entry::index);
    buttonsOf(window, group).at(static_cast<std::size_t>(at - options.begin()))->click();
}

void clickRowOfWidget(const Window& window, Name grid, int row)
{
    auto& table = widgetOf<QTableView>(window, grid);
    table.setCurrentIndex(table.model()->index(row - 1, 0));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&table, &enter);
}

void closeWidget(const Window& window)
{
    QCloseEvent event;
    QCoreApplication::sendEvent(&widgetOf(window), &event);
}

void copyFromWidget(const Window& window, Name chartOrGrid)
{
    // By name, because a chart also has an action that copies its picture.
    const QList<QAction*> actions = widgetOf<QWidget>(window, chartOrGrid).actions();
    for (QAction* action : actions)
        if (action->objectName() == QLatin1String("copyText"))
            action->trigger();
}

} // namespace plotvue::replay
