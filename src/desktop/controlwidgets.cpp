#include "desktop/controlwidgets.h"

#include "desktop/chart/chartwidget.h"
#include "desktop/displaytext.h"
#include "desktop/grid.h"
#include "desktop/menus.h"
#include "desktop/optionbuttons.h"
#include "desktop/smallwidgets.h"

#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>

namespace plotvue {

namespace {

constexpr int listRowPadding = 5, listMargin = 12;
constexpr double headlinePoints = 20; // labels of this size or larger are headlines, which do not wrap

int chartsAndGrids(const Declaration& declaration)
{
    int count = 0;
    forEachControl(declaration.content, [&count](const auto& control) {
        using Control = std::decay_t<decltype(control)>;
        count += std::is_same_v<Control, ChartBox> || std::is_same_v<Control, GridBox>;
    });
    return count;
}

QList<QKeySequence> shortcuts(TextSpan text)
{
    QList<QKeySequence> keys;
    const QStringList apart = toQString(text).split(QLatin1String(", "), Qt::SkipEmptyParts);
    for (const QString& key : apart)
        keys += QKeySequence(key, QKeySequence::PortableText);
    return keys;
}

// The tooltip of a button, for example "Refresh (F5)".
QString tip(const Button& declared, const QList<QKeySequence>& keys)
{
    QString name = toQString(declared.spokenName.empty() ? declared.caption : declared.spokenName);
    if (keys.isEmpty())
        return declared.spokenName.empty() ? QString() : name;
    return name.remove(u'&') + QLatin1String(" (") +
           QKeySequence::listToString(keys, QKeySequence::NativeText) + QLatin1Char(')');
}

void setFont(QWidget& widget, const Font& asked)
{
    QFont font = widget.font();
    if (!asked.family.empty())
        font.setFamilies({toQString(asked.family), font.family()});
    if (asked.points > 0)
        font.setPointSizeF(asked.points);
    font.setBold(asked.bold);
    font.setItalic(asked.italic);
    if (font != widget.font())
        widget.setFont(font);
}

} // namespace

ControlWidgets::ControlWidgets(WindowWidget& window, Menus& menus)
    : controls_(window.controls()),
      window_(window),
      menus_(menus),
      menuKeys_(chartsAndGrids(controls_.declaration) == 1 ? Qt::WindowShortcut : Qt::WidgetShortcut)
{}

QWidget* ControlWidgets::make(const Button& declared)
{
    const bool arrow = declared.picture == Button::Picture::Arrow;
    auto* button = arrow ? new ArrowButton(&window_) : new QPushButton(&window_);
    button->setText(toQString(declared.caption));
    button->setAutoDefault(true); // Enter presses it, as the space bar does
    if (!declared.spokenName.empty())
        button->setAccessibleName(toQString(declared.spokenName));
    const QList<QKeySequence> keys = shortcuts(declared.shortcut);
    button->setToolTip(tip(declared, keys));
    for (const QKeySequence& key : keys) {
        auto* shortcut = new QShortcut(key, &window_);
        shortcut->setAutoRepeat(key != Qt::Key_Escape); // a held Esc closes only one window
        QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
    }
    QObject::connect(button, &QPushButton::clicked, &window_,
                     [&controls = controls_, name = declared.name] { controls.press(name); });
    return button;
}

QWidget* ControlWidgets::make(const Label& declared)
{
    auto* label = new QLabel(&window_);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(declared.font.points < headlinePoints);
    setFont(*label, declared.font);
    Property<Text>& text = controls_.text(declared.name);
    text.changed = [label, &text] { label->setText(displayText(*text)); };
    text.changed();
    return label;
}

QWidget* ControlWidgets::make(const TextBox& declared)
{
    auto* line = new TextLine(declared, controls_.text(declared.name), &window_);
    menus_.add(*line);
    return line;
}

QWidget* ControlWidgets::make(const ListBox& declared)
{
    auto* list = new TextList(&window_);
    list->setAccessibleName(toQString(declared.spokenName));
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFont(*list, declared.font);
    const int rowHeight = list->fontMetrics().height() + listRowPadding;
    for (const TextSpan text : declared.items) {
        auto* item = new QListWidgetItem(toQString(text), list);
        item->setSizeHint({list->fontMetrics().horizontalAdvance(item->text()) + listMargin, rowHeight});
    }
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                          list->verticalScrollBar()->sizeHint().width());
    return list;
}

QWidget* ControlWidgets::make(const OptionFrame& declared)
{
    OptionButtons*& group = options_[declared.group];
    if (!group)
        group = new OptionButtons(controls_, declared.group, &window_);
    return group->addFrame(declared, &window_);
}

QWidget* ControlWidgets::make(const ChartBox& declared)
{
    auto* widget = new ChartWidget(&window_);
    Property<Chart>& chart = controls_.chart(declared.name);
    chart.changed = [widget, &chart] { widget->setChart(*chart); };
    chart.changed();
    menus_.add(*widget, menuKeys_);
    return widget;
}

QWidget* ControlWidgets::make(const GridBox& declared)
{
    Property<Grid>& rows = controls_.grid(declared.name);
    auto* grid = new GridTable(declared, rows, &window_);
    menus_.add(*grid, rows, menuKeys_);
    QObject::connect(
        grid, &GridTable::rowChosen, &window_,
        [&controls = controls_, name = declared.name](int row) { controls.clickRow(name, row); });
    return grid;
}

QWidget* ControlWidgets::make(const PictureBox& declared)
{
    return new GainLossPicture(declared, &window_);
}

} // namespace plotvue
