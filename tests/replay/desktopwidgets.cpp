#include "replay/desktopwidgets.h"

#include "desktop/chart/chartwidget.h"
#include "desktop/desktopwindow.h"
#include "desktop/displaytext.h"
#include "desktop/noticeline.h"
#include "platform/gridtext.h"

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

WindowWidget& widgetOf(const Window& form)
{
    return static_cast<DesktopWindow&>(form.native()).widget();
}

template <typename Widget>
Widget& widgetOf(const Window& form, Name name)
{
    auto* found = widgetOf(form).findChild<Widget*>(QString::fromLatin1(name.data(), qsizetype(name.size())));
    if (!found)
        throw std::out_of_range("no such widget");
    return *found;
}

// The radio buttons of an option group, in the order of its options.
std::vector<QRadioButton*> buttonsOf(const Window& form, Name group)
{
    std::vector<QRadioButton*> buttons;
    forEachControl(form.controls().declaration.content, [&](const auto& control) {
        if constexpr (requires { control.options; })
            if (control.group == group)
                for (auto* button :
                     widgetOf<QGroupBox>(form, control.name).template findChildren<QRadioButton*>())
                    buttons.push_back(button);
    });
    return buttons;
}

// `value` if the widget displays `toBeShown`, the form of `value` for display; otherwise the displayed text.
Text seen(const Text& value, const QString& toBeShown, const QString& shownText)
{
    return shownText == toBeShown ? value : toText(shownText);
}

QString captionOn(const QRadioButton& button)
{
    const QString elided = button.accessibleName();
    return elided.isEmpty() ? button.text().replace(QLatin1String("&&"), QLatin1String("&")) : elided;
}

void lookAt(SeenText& text, const Window& form, Name name)
{
    switch (text.of) {
    case SeenText::Of::Button:
        text.text = toText(widgetOf<QPushButton>(form, name).text());
        break;
    case SeenText::Of::Label:
        text.text = seen(text.text, displayText(text.text), widgetOf<QLabel>(form, name).text());
        break;
    case SeenText::Of::TextBox:
        text.text = seen(text.text, displayTextOnOneLine(text.text), widgetOf<QLineEdit>(form, name).text());
        break;
    }
}

void lookAt(SeenList& items, const Window& form, Name name)
{
    const auto& list = widgetOf<QListWidget>(form, name);
    items.clear();
    for (int row = 0; row < list.count(); ++row)
        items.push_back(toText(list.item(row)->text()));
}

void lookAt(OptionGroup& group, const Window& form, Name name)
{
    const auto buttons = buttonsOf(form, name);
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

void lookAt(Grid& grid, const Window& form, Name name)
{
    const QAbstractItemModel& model = *widgetOf<QTableView>(form, name).model();
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

// Leaves the chart empty if the widget's drawing differs from that of a new widget with the same chart.
void lookAt(Chart& chart, const Window& form, Name name)
{
    const auto& widget = widgetOf<ChartWidget>(form, name);
    ChartWidget fresh;
    fresh.setFont(widget.font());
    fresh.resize(widget.size());
    fresh.setChart(chart);
    if (fresh.chartLayout() != widget.chartLayout() || widget.chart() != chart)
        chart = {};
}

} // namespace

SeenWindow seenOnWidgets(const Window& form)
{
    SeenWindow window = seenIn(form.controls());
    window.caption = toText(widgetOf(form).windowTitle());
    const auto& notice = *widgetOf(form).findChild<NoticeLine*>();
    window.notice = notice.isHidden() ? Text() : toText(notice.text());
    for (auto& named : window.controls)
        std::visit([&](auto& control) { lookAt(control, form, named.first); }, named.second);
    return window;
}

void pressWidget(const Window& form, Name button)
{
    widgetOf<QPushButton>(form, button).click();
}

void chooseWidget(const Window& form, Name group, int index)
{
    const auto& options = form.controls().options(group)->options;
    const auto at = std::ranges::find(options, index, &OptionGroup::Entry::index);
    buttonsOf(form, group).at(static_cast<std::size_t>(at - options.begin()))->click();
}

void clickRowOfWidget(const Window& form, Name grid, int row)
{
    auto& table = widgetOf<QTableView>(form, grid);
    table.setCurrentIndex(table.model()->index(row - 1, 0));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&table, &enter);
}

void closeWidget(const Window& form)
{
    QCloseEvent event;
    QCoreApplication::sendEvent(&widgetOf(form), &event);
}

void copyFromWidget(const Window& form, Name chartOrGrid)
{
    // A chart can also copy its picture.
    const QList<QAction*> actions = widgetOf<QWidget>(form, chartOrGrid).actions();
    for (QAction* action : actions)
        if (action->objectName() == QLatin1String("copyText"))
            action->trigger();
}

} // namespace plotvue::replay
