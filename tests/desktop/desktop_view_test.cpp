#include "desktop/desktop_fixture.h"
#include "platform/recording/recordingview.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTableView>

#include <gmock/gmock.h>

namespace plotvue {

// Chart contents are compared where the replays are: here the rest.
static bool operator==(const ButtonState& a, const ButtonState& b)
{
    return a.caption == b.caption;
}
static bool operator==(const LabelState& a, const LabelState& b)
{
    return a.text == b.text;
}
static bool operator==(const TextBoxState& a, const TextBoxState& b)
{
    return a.text == b.text;
}
static bool operator==(const ListState& a, const ListState& b)
{
    return a.items == b.items;
}
static bool operator==(const OptionState& a, const OptionState& b)
{
    return a.index == b.index && a.caption == b.caption && a.visible == b.visible;
}
static bool operator==(const OptionsState& a, const OptionsState& b)
{
    return a.chosen == b.chosen && a.options == b.options;
}
static bool operator==(const GridState& a, const GridState& b)
{
    return a.format == b.format && a.columns == b.columns && a.rows == b.rows && a.cells == b.cells;
}
static bool operator==(const ChartContent& a, const ChartContent& b)
{
    return a.titles == b.titles && a.decimals == b.decimals && a.series == b.series && a.labels == b.labels &&
           a.hidden == b.hidden && a.legends == b.legends && a.colours == b.colours &&
           a.axisMin == b.axisMin && a.axisMax == b.axisMax;
}

namespace {

using testing::ElementsAre;
using Strings = std::vector<std::string>;

class DesktopViewTest : public test::DesktopTest {
protected:
    DesktopViewTest() : view(build(test::everyControl())) {}

    template <typename Widget>
    Widget& find(const QString& text)
    {
        const QList<Widget*> all = windowOf(*view).findChildren<Widget*>();
        for (Widget* widget : all)
            if (widget->text() == text)
                return *widget;
        throw std::out_of_range("no such widget");
    }

    static void type(QWidget& widget, Qt::Key key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier),
            release(QEvent::KeyRelease, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &press);
        QCoreApplication::sendEvent(&widget, &release);
    }

    void onScreen()
    {
        view->show();
        platform.settle();
        windowOf(*view).activateWindow();
        QCoreApplication::processEvents();
    }

    std::unique_ptr<View> view;
};

TEST_F(DesktopViewTest, ReadsBackWhatTheRecordingPlatformKeeps)
{
    RecordingView recording(test::everyControl(), {}, {});
    for (View* each : {view.get(), static_cast<View*>(&recording)}) {
        each->setCaption(u"New & caption");
        each->setText("Label1", u"two\r\nlines\r");
        each->setText("txt", TextSpan(u"nul \0 and half a pair \xD800\r", 25));
        each->options("opt").setCaption(6, u"A caption as long as a whole line of the host's screen\r\n");
        each->options("opt").setVisible(7, false);
        GridControl& grid = each->grid("Grid1");
        grid.setRows(4);
        grid.setCell(1, 2, u"1,234");
        grid.setCell(3, 0, u" gone with its row ");
        grid.setRows(3);
        grid.setFormat(u"<Sales Rep|>Sales - ALL");
        grid.setCell(2, 1, u"7\r");
        ChartArrayData data;
        data.AddArray(std::vector<double>{1, -2.5, 0});
        data.AddArray(std::vector<Text>{u"JAN99", u"FEB99", u""});
        ChartControl& chart = each->chart("Chart1");
        chart.SetChartData(data);
        chart.SetTitle(1, u"Sales\r");
        chart.SetAxisMax(10);
        each->choose("opt", 1);
        each->choose("opt", 7);
    }
    EXPECT_EQ(view->state().caption, recording.state().caption);
    for (const auto& [name, control] : recording.state().controls)
        EXPECT_TRUE(view->state().controls.at(name) == control) << name;
    EXPECT_EQ(view->state().controls.size(), recording.state().controls.size());
}

TEST_F(DesktopViewTest, GridRefusesWhatItDoesNotHold)
{
    GridControl& grid = view->grid("Grid1");
    grid.setRows(2);
    EXPECT_THROW(grid.setCell(0, 0, u"heading"), std::out_of_range);
    EXPECT_THROW(grid.setCell(2, 0, u"below"), std::out_of_range);
    EXPECT_THROW(grid.setCell(1, 3, u"beside"), std::out_of_range);
    EXPECT_THROW(view->chart("nothing"), std::out_of_range);
    EXPECT_THROW(view->setText("nothing", u""), std::out_of_range);
}

TEST_F(DesktopViewTest, ChosenOptionCanBeChosenAgain)
{
    QRadioButton& option = find<QRadioButton>("24 Month");
    option.click();
    option.click();
    EXPECT_THAT(ran, ElementsAre("opt 1", "opt 1"));
}

TEST_F(DesktopViewTest, OptionToggledByAssistiveTechnologyIsClicked)
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

TEST_F(DesktopViewTest, ArrowsMoveAndChooseWithinTheFrame)
{
    onScreen();
    QRadioButton& last = find<QRadioButton>("12 Month");
    last.setFocus();
    type(last, Qt::Key_Down);
    EXPECT_THAT(ran, ElementsAre()) << "the last option of its frame";
    find<QRadioButton>("A && B").setFocus();
    type(find<QRadioButton>("A && B"), Qt::Key_Down);
    EXPECT_THAT(ran, ElementsAre("opt 6"));
    EXPECT_EQ(view->options("opt").chosen(1), 6);
    EXPECT_EQ(view->options("opt").chosen(), 0);
    EXPECT_THROW(view->options("opt").chosen(2), std::out_of_range);
}

TEST_F(DesktopViewTest, TabReachesAFrameWhoseChosenOptionIsHidden)
{
    onScreen();
    OptionsControl& options = view->options("opt");
    find<QRadioButton>("D").setFocus();
    find<QRadioButton>("D").click();
    options.setVisible(7, false);
    find<QRadioButton>("12 Month").setFocus();
    type(find<QRadioButton>("12 Month"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &find<QRadioButton>("A && B"));
}

TEST_F(DesktopViewTest, LinesOfATextStayLines)
{
    view->setText("Label1", u"one\rtwo\r\nthree\nfour\r");
    EXPECT_EQ(windowOf(*view).findChild<QLabel*>()->text(), "one\ntwo\nthree\nfour");
    view->setText("txt", u"one\rtwo\r\n");
    EXPECT_EQ(windowOf(*view).findChild<QLineEdit*>()->text(), "one two");
}

TEST_F(DesktopViewTest, RowsAreNotCopiedOverTheScreenOnTheClipboard)
{
    QGuiApplication::clipboard()->setText("QXM31H");
    view->grid("Grid1").setRows(2);
    view->grid("Grid1").setCell(1, 1, u"ACME");
    auto& grid = *windowOf(*view).findChild<QTableView*>();
    grid.setCurrentIndex(grid.model()->index(0, 1));
    auto& list = *windowOf(*view).findChild<QListWidget*>();
    list.setCurrentRow(0);
    for (QWidget* each : {static_cast<QWidget*>(&grid), static_cast<QWidget*>(&list)}) {
        QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
        QCoreApplication::sendEvent(each, &copy);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "QXM31H");
    }
}

TEST_F(DesktopViewTest, HeldEscapeClosesOneWindow)
{
    Declaration closing = test::everyControl();
    closing.content.items.push_back({Button{.name = "cmdClose", .caption = u"Close", .shortcut = u"Esc"}});
    view = build(closing);
    const QList<QShortcut*> shortcuts = windowOf(*view).findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts)
        EXPECT_EQ(shortcut->autoRepeat(), shortcut->key() != Qt::Key_Escape);
}

TEST_F(DesktopViewTest, LettersAreOfTheFamilyAndSizeThatTheyAskForOrTheDesktopsOwn)
{
    const Font asked{.family = u"Arial", .points = 8.25, .bold = true, .italic = true};
    const auto letters =
        build({.name = "letters",
               .caption = {},
               .content = {Box::Direction::Column,
                           {{Label{.name = "asked", .text = u"A", .font = asked}},
                            {ListBox{.name = "list", .spokenName = {}, .items = {}, .font = asked}},
                            {Label{.name = "own", .text = u"B"}}}}});
    const QWidget& window = windowOf(*letters);
    const QStringList families{QStringLiteral("Arial"), window.font().family()};
    const QWidget* const withFont[] = {window.findChild<QLabel*>(), window.findChild<QListWidget*>()};
    for (const QWidget* widget : withFont) {
        EXPECT_EQ(widget->font().families(), families);
        EXPECT_EQ(widget->font().pointSizeF(), 8.25);
        EXPECT_TRUE(widget->font().bold() && widget->font().italic());
    }
    EXPECT_EQ(window.findChildren<QLabel*>().last()->font(), window.font());
}

TEST_F(DesktopViewTest, UntitledFrameHasAName)
{
    const QList<QGroupBox*> frames = windowOf(*view).findChildren<QGroupBox*>();
    ASSERT_EQ(frames.size(), 2);
    EXPECT_EQ(frames[0]->title(), "Months");
    EXPECT_EQ(frames[1]->accessibleName(), "Groups");
}

TEST_F(DesktopViewTest, ShortcutsPressTheButtonAndAreTold)
{
    QPushButton& button = find<QPushButton>("&Go");
    EXPECT_TRUE(button.toolTip().startsWith("Go (F5")) << button.toolTip().toStdString();
    Strings keys;
    const QList<QShortcut*> shortcuts = windowOf(*view).findChildren<QShortcut*>();
    for (QShortcut* shortcut : shortcuts) {
        keys.push_back(shortcut->key().toString(QKeySequence::PortableText).toStdString());
        emit shortcut->activated();
    }
    EXPECT_THAT(keys, ElementsAre("F5", "Ctrl+G"));
    EXPECT_THAT(ran, ElementsAre("cmdGo 0", "cmdGo 0"));
}

TEST_F(DesktopViewTest, ArrowButtonIsCalledByItsName)
{
    QPushButton& button = find<QPushButton>("");
    EXPECT_EQ(button.accessibleName(), "Back");
    EXPECT_EQ(button.toolTip(), "Back");
    type(button, Qt::Key_Return);
    EXPECT_THAT(ran, ElementsAre("cmdBack 0"));
}

TEST_F(DesktopViewTest, EnterOnARowIsAClick)
{
    view->grid("Grid1").setRows(4);
    view->clickRow("Grid1", 3);
    EXPECT_THAT(ran, ElementsAre("Grid1 3"));
}

TEST_F(DesktopViewTest, TitleBarAsksTheWindow)
{
    onScreen();
    windowOf(*view).close();
    EXPECT_THAT(ran, ElementsAre("close"));
    EXPECT_TRUE(windowOf(*view).isVisible());
    view->close();
    EXPECT_THAT(ran, ElementsAre("close", "close"));
}

TEST_F(DesktopViewTest, MayBeUnloadedByItsOwnButton)
{
    view = platform.build(test::everyControl(), {{"cmdGo", [this](int) { view.reset(); }}}, {});
    onScreen();
    find<QPushButton>("&Go").click();
    EXPECT_EQ(view, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(DesktopViewTest, FitsASmallScreen)
{
    const QSize least = windowOf(*view).minimumSizeHint();
    EXPECT_LE(least.width(), 800);
    EXPECT_LE(least.height(), 560);
}

} // namespace

} // namespace plotvue
