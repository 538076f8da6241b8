#include "desktop/widgets.h"

#include "desktop/chart/chartwidget.h"
#include "desktop/controlwidgets.h"
#include "desktop/displaytext.h"
#include "desktop/firstsize.h"
#include "desktop/grid.h"
#include "desktop/noticeline.h"

#include <QBoxLayout>
#include <QFontInfo>
#include <QPushButton>

namespace plotvue {

namespace {

constexpr int margin = 12, gap = 8, columnGap = 14;
constexpr int sideColumn = 24;        // width in average characters
constexpr double declaredPoints = 10; // the font size for which window sizes are declared

class Arrangement {
public:
    Arrangement(WindowWidget& window, Menus& menus) : window_(window), widgets_(window, menus) {}

    QBoxLayout* arrange(const Panel& panel);

    // The notice is above the content, but beside the side column, so that no button moves when it appears.
    QBoxLayout* arrangeUnder(NoticeLine& notice, const Panel& panel);

private:
    void place(const Item& item, QBoxLayout& layout);

    WindowWidget& window_;
    ControlWidgets widgets_;
};

bool isSideColumn(const Item& item)
{
    const Panel* panel = std::get_if<Panel>(&item.what);
    return panel && panel->direction == Panel::Direction::Column && item.stretch == 0;
}

QBoxLayout* Arrangement::arrange(const Panel& panel)
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

QBoxLayout* Arrangement::arrangeUnder(NoticeLine& notice, const Panel& panel)
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

void Arrangement::place(const Item& item, QBoxLayout& layout)
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
            QWidget* widget = widgets_.make(what);
            widget->setObjectName(QLatin1String(what.name.data(), qsizetype(what.name.size())));
            layout.addWidget(widget, item.stretch);
        }
    };
    std::visit(placeIt, item.what);
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
    QBoxLayout* layout = Arrangement(window, menus).arrangeUnder(*notice, declaration.content);
    layout->setContentsMargins(margin, margin, margin, margin);
    window.setLayout(layout);
    window.setMinimumHeight(minHeight(*layout, *notice));
    const double larger = qMax(1., window.fontInfo().pointSizeF() / declaredPoints);
    setFirstSize(window, (QSizeF(declaration.width, declaration.height) * larger).toSize());
    if (QWidget* first = firstInUse(window))
        first->setFocus();
}

} // namespace plotvue
