#include "desktop/menus.h"

#include "chart/figurestable.h"
#include "desktop/chart/chartpicture.h"
#include "desktop/chart/chartwidget.h"
#include "desktop/clipboard.h"
#include "desktop/contextmenu.h"
#include "desktop/displaytext.h"
#include "desktop/grid.h"
#include "desktop/savepicture.h"
#include "desktop/smallwidgets.h"
#include "platform/gridtext.h"

#include <QLocale>

namespace plotvue {

namespace {

// All shortcuts that the desktop uses for copying. Ctrl+C is the first one, because menus show the first.
QList<QKeySequence> copyKeys()
{
    const QKeySequence usual(Qt::CTRL | Qt::Key_C);
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Copy);
    keys.removeAll(usual);
    keys.prepend(usual);
    return keys;
}

char16_t decimalSign()
{
    return QLocale().decimalPoint().at(0).unicode();
}

} // namespace

void Menus::run(const std::function<void()>& action)
{
    platform_.run([&] {
        try {
            action();
        } catch (const Failure& failure) {
            platform_.message({}, failure.sentence);
        }
    });
}

void Menus::add(ChartWidget& chart, Qt::ShortcutContext keys)
{
    addToContextMenu(chart, QStringLiteral("Copy &Picture"), copyKeys(), keys, [this, &chart] {
        run([&] { putOnClipboard(pictureOf(chart), platform_.clipboardText()); });
    });
    QAction* figures = addToContextMenu(
        chart, QStringLiteral("Copy &Figures"), {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, keys,
        [this, &chart] { run([&] { platform_.copy(figuresTable(chart.plotData(), decimalSign())); }); });
    figures->setObjectName(QStringLiteral("copyText"));
    const auto enable = [figures, &chart] { figures->setEnabled(chart.points() > 0); };
    QObject::connect(&chart, &ChartWidget::chartChanged, figures, enable);
    enable();
    addToContextMenu(chart, QStringLiteral("&Save Picture\u2026"), {Qt::CTRL | Qt::Key_S}, keys,
                     [this, &chart] { run([&] { savePicture(chart, folder_); }); });
}

void Menus::add(GridTable& grid, const Property<Grid>& rows, Qt::ShortcutContext keys)
{
    QAction* copy = addToContextMenu(grid, QStringLiteral("&Copy Rows"), copyKeys(), keys,
                                     [this, &rows] { run([&] { platform_.copy(rowsTable(*rows)); }); });
    copy->setObjectName(QStringLiteral("copyText"));
    const auto enable = [copy, model = grid.model()] { copy->setEnabled(model->rowCount() > 0); };
    QObject::connect(grid.model(), &QAbstractItemModel::modelReset, copy, enable);
    enable();
}

void Menus::add(TextLine& line)
{
    const auto copySelected = [this, &line] { run([&] { platform_.copy(toText(line.selectedText())); }); };
    QAction* copy =
        addToContextMenu(line, QStringLiteral("&Copy"), copyKeys(), Qt::WidgetShortcut, copySelected);
    QObject::connect(&line, &TextLine::copyKeyPressed, &line, copySelected);
    const auto enable = [copy, &line] { copy->setEnabled(line.hasSelectedText()); };
    QObject::connect(&line, &QLineEdit::selectionChanged, copy, enable);
    enable();
    addToContextMenu(line, QStringLiteral("Select &All"), {QKeySequence::SelectAll}, Qt::WidgetShortcut,
                     [&line] { line.selectAll(); });
}

} // namespace plotvue
