#include "desktop/widgets.h"

#include "desktop/chart/chartwidget.h"
#include "desktop/displaytext.h"
#include "desktop/firstsize.h"
#include "desktop/grid.h"
#include "desktop/menus.h"
#include "desktop/noticeline.h"
#include "desktop/optionbuttons.h"
#include "desktop/smallwidgets.h"

#include <QBoxLayout>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>

namespace plotvue {

namespace {

constexpr int margin = 12, gap = 8, columnGap = 14, listRowPadding = 5;
constexpr int sideColumn = 24;        // width in average characters
constexpr double headlinePoints = 20; // labels of this size or larger are headlines, which do not wrap
constexpr double declaredPoints = 10; // the font size for which window sizes are declared

int chartsAndGrids(const Declaration& declaration)
{
    int count = 0;
    forEachControl(declaration.content, [&count](const auto& control) {
        using Control = std::decay_t<decltype(control)>;
        count += std::is_same_v<Control, ChartBox> || std::is_same_v<Control, GridBox>;
    });
    return count;
}

class Builder {
public:
    Builder(WindowWidget& window, Menus& menus)
        : controls_(window.controls()),
          window_(window),
          menus_(menus),
          menuKeys_(chartsAndGrids(controls_.declaration) == 1 ? Qt::WindowShortcut : Qt::WidgetShortcut)
    {}

    QBoxLayout* arrange(const Panel& panel);

    // The notice is above the content, but beside the side column, so that no button moves when it appears.
    QBoxLayout* arrangeUnder(NoticeLine& notice, const Panel& panel);

private:
    void place(const Item& item, QBoxLayout& layout);

    QWidget* make(const Button& declared);
    QWidget* make(const Label& declared);
    QWidget* make(const TextBox& declared);
    QWidget* make(const ListBox& declared);
    QWidget* make(const OptionFrame& declared);
    QWidget* make(const ChartBox& declared);
    QWidget* make(const GridBox& declared);
    QWidget* make(const PictureBox& declared) { return new GainLossPicture(declared, &window_); }

    Controls& controls_;
    WindowWidget& window_;
    Menus& menus_;
    Qt::ShortcutContext menuKeys_; // the whole window if it has only one chart or list
    std::map<Name, OptionButtons*> options_;
};

bool isSideColumn(const Item& item)
{
    const Panel* panel = std::get_if<Panel>(&item.what);
    return panel && panel->direction == Panel::Direction::Column && item.stretch == 0;
}

QBoxLayout* Builder::arrange(const Panel& panel)
{
    const bool row = panel.direction == Panel::Direction::Row;
    auto* layout = new QBoxLayout(row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    layout->setContentsMargins(0, 0, 0, 0);
    bool columns = false;
    for (const Item& item : panel.items) {
        place(item, *layout);
        columns = columns || (row && std::holds_alternative<Panel>(item.what));
    }
    layout->setSpacing(columns ? columnGap : gap);
    return layout;
}

QBoxLayout* Builder::arrangeUnder(NoticeLine& notice, const Panel& panel)
{
    Panel content = panel;
    const bool beside = content.direction == Panel::Direction::Row && isSideColumn(content.items.back());
    Panel side{Panel::Direction::Row, {}};
    if (beside) {
        side.items.push_back(content.items.back());
        content.items.pop_back();
    }
    auto* under = new QVBoxLayout;
    under->setSpacing(gap);
    under->addWidget(&notice);
    QBoxLayout* inner = arrange(content);
    under->addLayout(inner, 1);
    // minHeight() must know the height that the longest notice needs.
    notice.setFixedHeight(notice.maxHeight(inner->totalMinimumSize().width()));
    if (!beside)
        return under;
    inner->setSpacing(columnGap);
    auto* layout = new QHBoxLayout;
    layout->setSpacing(columnGap);
    layout->addLayout(under, 1);
    layout->addLayout(arrange(side));
    return layout;
}

void Builder::place(const Item& item, QBoxLayout& layout)
{
    const auto placeIt = [&]<typename What>(const What& what) {
        if constexpr (std::is_same_v<What, Space>) {
            layout.addStretch(item.stretch);
        } else if constexpr (std::is_same_v<What, Panel>) {
            QBoxLayout* inner = arrange(what);
            if (isSideColumn(item) && layout.direction() == QBoxLayout::LeftToRight)
                inner->addStrut(sideColumn * window_.fontMetrics().averageCharWidth());
            layout.addLayout(inner, item.stretch);
        } else {
            QWidget* widget = make(what);
            widget->setObjectName(QLatin1String(what.name.data(), qsizetype(what.name.size())));
            layout.addWidget(widget, item.stretch);
        }
    };
    std::visit(placeIt, item.what);
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

QWidget* Builder::make(const Button& declared)
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

QWidget* Builder::make(const Label& declared)
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

QWidget* Builder::make(const TextBox& declared)
{
    auto* line = new TextLine(declared, controls_.text(declared.name), &window_);
    menus_.add(*line);
    return line;
}

QWidget* Builder::make(const ListBox& declared)
{
    auto* list = new TextList(&window_);
    list->setAccessibleName(toQString(declared.spokenName));
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFont(*list, declared.font);
    const int rowHeight = list->fontMetrics().height() + listRowPadding;
    for (const TextSpan text : declared.items) {
        auto* item = new QListWidgetItem(toQString(text), list);
        item->setSizeHint({list->fontMetrics().horizontalAdvance(item->text()) + margin, rowHeight});
    }
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                          list->verticalScrollBar()->sizeHint().width());
    return list;
}

QWidget* Builder::make(const OptionFrame& declared)
{
    OptionButtons*& group = options_[declared.group];
    if (!group)
        group = new OptionButtons(controls_, declared.group, &window_);
    return group->addFrame(declared, &window_);
}

QWidget* Builder::make(const ChartBox& declared)
{
    auto* widget = new ChartWidget(&window_);
    Property<Chart>& chart = controls_.chart(declared.name);
    chart.changed = [widget, &chart] { widget->setChart(*chart); };
    chart.changed();
    menus_.add(*widget, menuKeys_);
    return widget;
}

QWidget* Builder::make(const GridBox& declared)
{
    Property<Grid>& rows = controls_.grid(declared.name);
    auto* grid = new GridTable(declared, rows, &window_);
    menus_.add(*grid, rows, menuKeys_);
    QObject::connect(
        grid, &GridTable::rowChosen, &window_,
        [&controls = controls_, name = declared.name](int row) { controls.clickRow(name, row); });
    return grid;
}

// The widget with the initial focus: the chart, else the grid, else the first button.
QWidget* firstInUse(const WindowWidget& window)
{
    if (auto* chart = window.findChild<ChartWidget*>())
        return chart;
    if (auto* grid = window.findChild<GridTable*>())
        return grid;
    return window.findChild<QPushButton*>();
}

// The height that holds every line of the wrapped texts, and a notice, so that the window keeps its size when
// a notice appears.
int minHeight(QLayout& layout, NoticeLine& notice)
{
    const bool isShown = !notice.isHidden();
    notice.setVisible(true);
    layout.activate();
    const int height = layout.hasHeightForWidth()
                           ? layout.totalMinimumHeightForWidth(layout.totalMinimumSize().width())
                           : layout.totalMinimumSize().height();
    notice.setVisible(isShown);
    return height;
}

} // namespace

void buildWidgets(WindowWidget& window, Menus& menus)
{
    const Declaration& declaration = window.controls().declaration;
    window.setWindowTitle(toQString(declaration.caption));
    auto* notice = new NoticeLine(window.controls().notice, &window);
    QBoxLayout* layout = Builder(window, menus).arrangeUnder(*notice, declaration.content);
    layout->setContentsMargins(margin, margin, margin, margin);
    window.setLayout(layout);
    window.setMinimumHeight(minHeight(*layout, *notice));
    const double larger = qMax(1., window.fontInfo().pointSizeF() / declaredPoints);
    setFirstSize(window, (QSizeF(declaration.width, declaration.height) * larger).toSize());
    if (QWidget* first = firstInUse(window))
        first->setFocus();
}

} // namespace plotvue
