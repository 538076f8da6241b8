// Context menus, and what their entries put on the clipboard.
#include "desktop/chart/chartwidget.h"
#include "desktop/clipboard.h"
#include "desktop/desktopfixture.h"
#include "desktop/displaytext.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QTableView>
#include <QTimer>

#include <gmock/gmock.h>

namespace plotvue {

namespace {

using testing::ElementsAre;

class Menus : public test::DesktopTest {
protected:
    Menus() : every(shown())
    {
        QGuiApplication::clipboard()->setText(toQString(screen));
        every.widget().activateWindow();
        QApplication::processEvents();
    }
    ~Menus() override { QLocale::setDefault(QLocale::system()); }

    template <typename Widget>
    Widget& the()
    {
        return *every.widget().findChild<Widget*>();
    }
    ChartWidget& chart() { return the<ChartWidget>(); }
    QTableView& grid() { return the<QTableView>(); }

    static QAction& entry(QWidget& widget, const QString& text)
    {
        const QList<QAction*> entries = widget.actions();
        for (QAction* action : entries)
            if (action->text().remove(u'&') == text)
                return *action;
        throw std::out_of_range("no such entry");
    }

    static std::vector<std::string> entries(const QWidget& widget)
    {
        std::vector<std::string> texts;
        const QList<QAction*> actions = widget.actions();
        for (const QAction* action : actions)
            texts.push_back((action->text() + u' ' + action->shortcut().toString()).toStdString());
        return texts;
    }

    void fillChart()
    {
        every.controls->chart("Chart1").change([](Chart& chart) {
            chart.series = {{-1234.5, 2}};
            chart.labels = {u"SEP99", u"OCT99"};
            chart.legends = {{0, u"Sales"}};
        });
    }

    void fillGrid()
    {
        every.controls->grid("Grid1").change([](Grid& rows) {
            rows.setRows(2);
            rows.setCell(1, 0, u"1");
            rows.setCell(1, 1, u" ACME ");
            rows.setCell(1, 2, u"1,234.50");
        });
    }

    // The open context menu; null if none is open.
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    static void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        widget.setFocus();
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&widget, &event); // also triggers the shortcuts of the focused widget
    }

    // The clipboard's text, with LF in place of CR LF on every system: on Windows, the toolkit returns it so.
    static QString pasted() { return QGuiApplication::clipboard()->text().replace("\r\n", "\n"); }

    const Text screen = u"QXM31H\r\nthe \xD800 screen \n";
    const Text mended = u"QXM31H\r\nthe \xD800 screen \r\n";
    const QString unchanged = toQString(u"QXM31H\nthe \xD800 screen \n");
    Built every;
};

TEST_F(Menus, HaveTheirEntriesAndShowTheirKeys)
{
    EXPECT_THAT(entries(chart()),
                ElementsAre("Copy &Picture Ctrl+C", "Copy &Figures Ctrl+Shift+C", "&Save Picture… Ctrl+S"));
    EXPECT_THAT(entries(grid()), ElementsAre("&Copy Rows Ctrl+C"));
    EXPECT_THAT(entries(the<QLineEdit>()), ElementsAre("&Copy Ctrl+C", "Select &All Ctrl+A"));
    EXPECT_THAT(entries(the<QListWidget>()), ElementsAre());
    for (QWidget* widget : {static_cast<QWidget*>(&chart()), static_cast<QWidget*>(&grid())})
        for (const QAction* action : widget->actions())
            EXPECT_TRUE(action->isShortcutVisibleInContextMenu());
}

TEST_F(Menus, TakeEveryKeyOfTheDesktopForCopying)
{
    fillGrid();
    for (const QKeySequence& key : QKeySequence::keyBindings(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(toQString(screen));
        press(grid(), key[0].key(), key[0].keyboardModifiers());
        EXPECT_EQ(pasted(), "Rank\tName\tTotal\n1\tACME\t1,234.50\n");
        press(chart(), key[0].key(), key[0].keyboardModifiers());
        EXPECT_EQ(pasted(), "") << "a picture is no text";
        EXPECT_EQ(readClipboard(), mended);
    }
}

TEST_F(Menus, KeysWorkInTheWholeWindowIfThereIsOneToCopy)
{
    EXPECT_EQ(entry(chart(), "Copy Picture").shortcutContext(), Qt::WidgetShortcut);
    EXPECT_EQ(entry(grid(), "Copy Rows").shortcutContext(), Qt::WidgetShortcut);
    const Built one = build({.name = "one",
                             .caption = {},
                             .content = {Panel::Direction::Column, {{ChartBox{.name = "Chart1"}}}}});
    QAction& copy = entry(*one.widget().findChild<ChartWidget*>(), "Copy Picture");
    EXPECT_EQ(copy.shortcutContext(), Qt::WindowShortcut);
}

TEST_F(Menus, OpenByMouseAndByKey)
{
    for (QWidget* widget : {static_cast<QWidget*>(&chart()), static_cast<QWidget*>(&grid())}) {
        EXPECT_EQ(openMenu(), nullptr);
        auto* area = qobject_cast<QAbstractScrollArea*>(widget);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, widget->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(area ? area->viewport() : widget, &event);
        ASSERT_NE(openMenu(), nullptr);
        EXPECT_EQ(openMenu()->actions(), widget->actions());
        press(*openMenu(), Qt::Key_Escape);
        QApplication::processEvents();
        EXPECT_EQ(openMenu(), nullptr);
        press(*widget, Qt::Key_F10, Qt::ShiftModifier);
        ASSERT_NE(openMenu(), nullptr);
        EXPECT_TRUE(widget->rect().contains(widget->mapFromGlobal(openMenu()->pos())));
        press(*openMenu(), Qt::Key_Escape);
        QApplication::processEvents();
    }
}

TEST_F(Menus, OfAChartAreOfferedToAssistiveTechnology)
{
    QAccessibleActionInterface* told = QAccessible::queryAccessibleInterface(&chart())->actionInterface();
    EXPECT_TRUE(told->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    told->doAction(QAccessibleActionInterface::showMenuAction());
    ASSERT_NE(openMenu(), nullptr);
    openMenu()->close();
}

TEST_F(Menus, MayLoseTheirWindowWhileTheyAreOpen)
{
    press(chart(), Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(openMenu(), nullptr);
    every.window.reset();
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(Menus, CopyFiguresWithTheDecimalSignOfTheDesktop)
{
    fillChart();
    entry(chart(), "Copy Figures").trigger();
    EXPECT_EQ(pasted(), "\tSales\nSEP99\t-1234.5\nOCT99\t2\n");
    QLocale::setDefault(QLocale(QLocale::German));
    entry(chart(), "Copy Figures").trigger();
    EXPECT_EQ(pasted(), "\tSales\nSEP99\t-1234,5\nOCT99\t2\n");
}

TEST_F(Menus, CopyRowsAsTheyAreShown)
{
    fillGrid();
    QLocale::setDefault(QLocale(QLocale::German));
    entry(grid(), "Copy Rows").trigger();
    EXPECT_EQ(pasted(), "Rank\tName\tTotal\n1\tACME\t1,234.50\n");
}

TEST_F(Menus, KeepTheCapturedScreen)
{
    fillChart();
    fillGrid();
    the<QLineEdit>().setText("part");
    the<QLineEdit>().selectAll();
    QAction* const copies[] = {&entry(chart(), "Copy Picture"), &entry(chart(), "Copy Figures"),
                               &entry(grid(), "Copy Rows"), &entry(the<QLineEdit>(), "Copy")};
    for (QAction* copy : copies) {
        copy->trigger();
        EXPECT_NE(pasted(), unchanged);
        EXPECT_EQ(readClipboard(), mended);
        EXPECT_EQ(platform.clipboardText(), mended);
    }
    QGuiApplication::clipboard()->setText("another");
    EXPECT_EQ(readClipboard(), u"another");
}

TEST_F(Menus, KeepThatThereWasNoScreen)
{
    fillChart();
    QGuiApplication::clipboard()->clear();
    entry(chart(), "Copy Figures").trigger();
    EXPECT_FALSE(pasted().isEmpty());
    EXPECT_EQ(readClipboard(), u"");
}

TEST_F(Menus, WhereThereIsNothingToCopyLeaveTheClipboardAlone)
{
    EXPECT_FALSE(entry(chart(), "Copy Figures").isEnabled());
    EXPECT_FALSE(entry(grid(), "Copy Rows").isEnabled());
    EXPECT_FALSE(entry(the<QLineEdit>(), "Copy").isEnabled());
    press(chart(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(pasted(), unchanged);
    for (const QKeySequence& key : QKeySequence::keyBindings(QKeySequence::Copy))
        for (QWidget* widget : {static_cast<QWidget*>(&grid()), static_cast<QWidget*>(&the<QListWidget>()),
                                static_cast<QWidget*>(&the<QLineEdit>())}) {
            press(*widget, key[0].key(), key[0].keyboardModifiers());
            EXPECT_EQ(pasted(), unchanged);
        }
    fillChart();
    fillGrid();
    EXPECT_TRUE(entry(chart(), "Copy Figures").isEnabled());
    EXPECT_TRUE(entry(grid(), "Copy Rows").isEnabled());
}

TEST_F(Menus, ListsWithoutAMenuCopyNothing)
{
    auto& list = the<QListWidget>();
    list.setCurrentRow(0);
    for (const QKeySequence& key : QKeySequence::keyBindings(QKeySequence::Copy)) {
        press(list, key[0].key(), key[0].keyboardModifiers());
        EXPECT_EQ(pasted(), unchanged);
    }
}

TEST_F(Menus, KeysInATextBoxCopyWhatIsSelected)
{
    auto& line = the<QLineEdit>();
    line.setText("12 months");
    line.setSelection(0, 2);
    EXPECT_TRUE(entry(line, "Copy").isEnabled());
    for (const QKeySequence& key : QKeySequence::keyBindings(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(toQString(screen));
        press(line, key[0].key(), key[0].keyboardModifiers());
        EXPECT_EQ(pasted(), "12");
        EXPECT_EQ(readClipboard(), mended);
    }
    entry(line, "Select All").trigger();
    EXPECT_EQ(line.selectedText(), "12 months");
}

TEST_F(Menus, KeysInABoxCopyItsTextAndKeepTheCapturedScreen)
{
    DesktopPlatform withBoxes;
    for (const QKeySequence& key : QKeySequence::keyBindings(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(toQString(screen));
        QTimer opened;
        QObject::connect(&opened, &QTimer::timeout, &opened, [&key] {
            QWidget* box = QApplication::activeModalWidget();
            // Before the toolkit knows that the box is active, the window below it takes the keys. On
            // Windows, isActiveWindow() is true too early.
            if (box && box == QApplication::activeWindow()) {
                type(*box, key[0].key(), key[0].keyboardModifiers());
                type(*box, Qt::Key_Escape);
            }
        });
        opened.start(1);
        withBoxes.message(u"Need Data", u"Clipboard contains no data");
        EXPECT_EQ(pasted(), "Clipboard contains no data");
        EXPECT_EQ(readClipboard(), mended);
    }
}

TEST_F(Menus, CopyNothingOnceTheProcessIsOver)
{
    fillChart();
    platform.run([] { throw Failure{u"It does not fit."}; });
    entry(chart(), "Copy Figures").trigger();
    entry(chart(), "Copy Picture").trigger();
    EXPECT_EQ(pasted(), unchanged);
}

} // namespace

} // namespace plotvue
