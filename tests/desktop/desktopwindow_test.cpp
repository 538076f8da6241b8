#include "desktop/chart/chartwidget.h"
#include "desktop/chart/qtext.h"
#include "desktop/desktopfixture.h"

#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTableView>

#include <gmock/gmock.h>

namespace plotvue {

namespace {

using testing::ElementsAre;
using Strings = std::vector<std::string>;

class DesktopWindowTest : public test::DesktopTest {
protected:
    DesktopWindowTest() : every(build()) {}

    template <typename Widget>
    Widget& find(const QString& text)
    {
        const QList<Widget*> all = every.widget().findChildren<Widget*>();
        for (Widget* widget : all)
            if (widget->text() == text)
                return *widget;
        throw std::out_of_range("no such widget");
    }

    void onScreen()
    {
        every.window->show();
        platform.settle();
        every.widget().activateWindow();
        QCoreApplication::processEvents();
    }

    Built every;
};

TEST_F(DesktopWindowTest, ShowsEachChangeOfItsControls)
{
    onScreen();
    Controls& controls = *every.controls;
    controls.text("Label1").set(u"two\r\nlines\r");
    EXPECT_EQ(every.widget().findChild<QLabel*>("Label1")->text(), "two\nlines");
    controls.text("txt").set(Text(u"nul \0 gone\r", 11));
    EXPECT_EQ(every.widget().findChild<QLineEdit*>("txt")->text(), "nul  gone");

    controls.options("opt").change([](OptionGroup& options) {
        options.setCaption(6, u"C & E\r\n");
        options.setVisible(7, false);
    });
    EXPECT_FALSE(find<QRadioButton>("D").isVisible());
    EXPECT_TRUE(find<QRadioButton>("C && E").isVisible());
    controls.options("opt").change([](OptionGroup& options) { options.setVisible(7, true); });
    EXPECT_TRUE(find<QRadioButton>("D").isVisible());
    controls.choose("opt", 1);
    EXPECT_TRUE(find<QRadioButton>("24 Month").isChecked());
    EXPECT_TRUE(find<QRadioButton>("A && B").isChecked()) << "the choice in the other frame";

    controls.grid("Grid1").change([](Grid& grid) {
        grid.setRows(3);
        grid.setFormat(u"<Sales Rep|>Sales - ALL");
        grid.setCell(2, 1, u"7\r");
    });
    const QAbstractItemModel& model = *every.widget().findChild<QTableView*>("Grid1")->model();
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal), "Sales - ALL");
    EXPECT_EQ(model.index(1, 1).data(), "7");
    EXPECT_EQ(model.index(0, 0).data(), "");

    const auto& chart = *every.widget().findChild<ChartWidget*>("Chart1");
    EXPECT_EQ(chart.chartLayout().titles.at(0).text, u"By design");
    controls.chart("Chart1").change([](Chart& changed) {
        changed.SetTitle(1, u"Sales\r");
        changed.series = {{1, -2.5}};
    });
    EXPECT_EQ(chart.chartLayout().titles.at(0).text, u"Sales");
    EXPECT_EQ(chart.chartLayout().bars.size(), 2U);
}

TEST_F(DesktopWindowTest, ShowsChangesMadeBeforeItWasVisible)
{
    every.controls->text("Label1").set(u"early");
    every.controls->options("opt").change([](OptionGroup& options) { options.setVisible(6, false); });
    onScreen();
    EXPECT_EQ(every.widget().findChild<QLabel*>("Label1")->text(), "early");
    EXPECT_FALSE(find<QRadioButton>("C").isVisible());
}

TEST_F(DesktopWindowTest, ChosenOptionCanBeChosenAgain)
{
    QRadioButton& option = find<QRadioButton>("24 Month");
    option.click();
    option.click();
    EXPECT_THAT(ran, ElementsAre("opt 1", "opt 1"));
}

TEST_F(DesktopWindowTest, OptionToggledByAssistiveTechnologyIsClicked)
{
    onScreen();
    EXPECT_THAT(ran, ElementsAre());
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&find<QRadioButton>("24 Month"));
    told->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCoreApplication::processEvents();
    EXPECT_THAT(ran, ElementsAre("opt 1"));
    find<QRadioButton>("12 Month").click();
    QCoreApplication::processEvents();
    EXPECT_THAT(ran, ElementsAre("opt 1", "opt 0"));
}

TEST_F(DesktopWindowTest, ArrowsMoveAndChooseWithinTheFrame)
{
    onScreen();
    QRadioButton& last = find<QRadioButton>("12 Month");
    last.setFocus();
    type(last, Qt::Key_Down);
    EXPECT_THAT(ran, ElementsAre()) << "the last option of its frame";
    find<QRadioButton>("A && B").setFocus();
    type(find<QRadioButton>("A && B"), Qt::Key_Down);
    EXPECT_THAT(ran, ElementsAre("opt 6"));
    EXPECT_EQ(every.controls->options("opt")->chosenIn(1), 6);
    EXPECT_EQ(every.controls->options("opt")->chosenIn(0), 0);
}

TEST_F(DesktopWindowTest, TabReachesAFrameWhoseChosenOptionIsHidden)
{
    onScreen();
    find<QRadioButton>("D").setFocus();
    find<QRadioButton>("D").click();
    every.controls->options("opt").change([](OptionGroup& options) { options.setVisible(7, false); });
    find<QRadioButton>("12 Month").setFocus();
    type(find<QRadioButton>("12 Month"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &find<QRadioButton>("A && B"));
}

TEST_F(DesktopWindowTest, ALongCaptionIsShortenedAndIsWholeInTheTooltip)
{
    onScreen();
    QRadioButton& option = find<QRadioButton>("C");
    const QString name =
        QStringLiteral("MOTOR OIL, GREASE & BRAKE FLUID OF ALL VENDORS BUT THOSE OF THE NORTH.");
    ASSERT_EQ(name.size(), 70);
    every.controls->options("opt").change([&](OptionGroup& options) { options.setCaption(6, toText(name)); });
    for (int layouts = 0; layouts < 2; ++layouts) // first of the frame, then of the window around it
        QCoreApplication::processEvents();
    EXPECT_LE(option.parentWidget()->width(), 40 * option.fontMetrics().averageCharWidth());
    EXPECT_LE(option.sizeHint().width(), option.width());
    EXPECT_TRUE(option.text().startsWith("MOTOR OIL, GREASE")) << option.text().toStdString();
    EXPECT_TRUE(option.text().endsWith(QChar(0x2026)));
    EXPECT_EQ(option.toolTip(), name);
    EXPECT_EQ(option.accessibleName(), name);
    EXPECT_EQ(find<QRadioButton>("D").toolTip(), "");
}

TEST_F(DesktopWindowTest, KeepsTheLinesOfALabel)
{
    every.controls->text("Label1").set(u"one\rtwo\r\nthree\nfour\r");
    EXPECT_EQ(every.widget().findChild<QLabel*>()->text(), "one\ntwo\nthree\nfour");
    every.controls->text("txt").set(u"one\rtwo\r\n");
    EXPECT_EQ(every.widget().findChild<QLineEdit*>()->text(), "one two");
}

TEST_F(DesktopWindowTest, OnlyEscapeDoesNotRepeat)
{
    Declaration closing = test::everyControl();
    closing.content.items.push_back({Button{.name = "cmdClose", .caption = u"Close", .shortcut = u"Esc"}});
    every = build(closing);
    Strings repeating, others;
    const QList<QShortcut*> shortcuts = every.widget().findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts)
        (shortcut->autoRepeat() ? repeating : others).push_back(shortcut->key().toString().toStdString());
    EXPECT_THAT(repeating, ElementsAre("F5", "Ctrl+G"));
    EXPECT_THAT(others, ElementsAre("Esc"));
}

TEST_F(DesktopWindowTest, FontsHaveTheDeclaredFamilyAndSizeOrTheDesktops)
{
    const Font asked{.family = u"Arial", .points = 8.25, .bold = true, .italic = true};
    const auto letters =
        build({.name = "letters",
               .caption = {},
               .content = {Panel::Direction::Column,
                           {{Label{.name = "asked", .text = u"A", .font = asked}},
                            {ListBox{.name = "list", .spokenName = {}, .items = {}, .font = asked}},
                            {Label{.name = "own", .text = u"B"}}}}});
    const QWidget& window = letters.widget();
    const QStringList families{QStringLiteral("Arial"), window.font().family()};
    const QWidget* const withFont[] = {window.findChild<QLabel*>(), window.findChild<QListWidget*>()};
    for (const QWidget* widget : withFont) {
        EXPECT_EQ(widget->font().families(), families);
        EXPECT_EQ(widget->font().pointSizeF(), 8.25);
        EXPECT_TRUE(widget->font().bold() && widget->font().italic());
    }
    EXPECT_EQ(window.findChildren<QLabel*>().last()->font(), window.font());
}

TEST_F(DesktopWindowTest, UntitledFrameHasAnAccessibleName)
{
    const QList<QGroupBox*> frames = every.widget().findChildren<QGroupBox*>();
    ASSERT_EQ(frames.size(), 2);
    EXPECT_EQ(frames[0]->title(), "Months");
    EXPECT_EQ(frames[1]->accessibleName(), "Groups");
}

TEST_F(DesktopWindowTest, ShortcutsPressTheButtonAndAreInItsTooltip)
{
    QPushButton& button = find<QPushButton>("&Go");
    EXPECT_TRUE(button.toolTip().startsWith("Go (F5")) << button.toolTip().toStdString();
    Strings keys;
    const QList<QShortcut*> shortcuts = every.widget().findChildren<QShortcut*>();
    for (QShortcut* shortcut : shortcuts) {
        keys.push_back(shortcut->key().toString(QKeySequence::PortableText).toStdString());
        emit shortcut->activated();
    }
    EXPECT_THAT(keys, ElementsAre("F5", "Ctrl+G"));
    EXPECT_THAT(ran, ElementsAre("cmdGo 0", "cmdGo 0"));
}

TEST_F(DesktopWindowTest, ArrowButtonHasItsAccessibleName)
{
    QPushButton& button = find<QPushButton>("");
    EXPECT_EQ(button.accessibleName(), "Back");
    EXPECT_EQ(button.toolTip(), "Back");
    type(button, Qt::Key_Return);
    EXPECT_THAT(ran, ElementsAre("cmdBack 0"));
}

TEST_F(DesktopWindowTest, TitleBarRunsTheCloseHandler)
{
    onScreen();
    every.widget().close();
    EXPECT_THAT(ran, ElementsAre("close"));
    EXPECT_TRUE(every.widget().isVisible());
}

TEST_F(DesktopWindowTest, IsNoLongerHeardOnceItIsDestroyed)
{
    QPushButton& button = find<QPushButton>("&Go");
    every.window.reset();
    button.click(); // the widgets exist until the end of the event
    EXPECT_THAT(ran, ElementsAre());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(DesktopWindowTest, KeepsItsControlsUntilItsWidgetsAreDeleted)
{
    bool kept = false;
    QObject::connect(&find<QPushButton>("&Go"), &QObject::destroyed,
                     [&kept, controls = std::weak_ptr(every.controls)] { kept = !controls.expired(); });
    every = {};
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(kept);
}

TEST_F(DesktopWindowTest, CanBeUnloadedByItsOwnButton)
{
    onOperated = [this] { every = {}; };
    onScreen();
    find<QPushButton>("&Go").click();
    EXPECT_EQ(every.window, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(DesktopWindowTest, FitsASmallScreen)
{
    const QSize minimum = every.widget().minimumSizeHint();
    EXPECT_LE(minimum.width(), 800);
    EXPECT_LE(minimum.height(), 560);
}

} // namespace

} // namespace plotvue
