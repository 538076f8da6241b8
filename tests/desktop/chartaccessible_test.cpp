#include "desktop/chartsample.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace plotvue {

TEST(ChartAccessible, IsAChartNamedByItsTitles)
{
    ShownChart chart;
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&chart);
    ASSERT_NE(told, nullptr);
    EXPECT_EQ(told->role(), QAccessible::Chart);
    EXPECT_EQ(told->text(QAccessible::Name), "Sales, Product: 4711");
}

TEST(ChartAccessible, HasAChildPerPoint)
{
    ShownChart chart;
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&chart);
    ASSERT_EQ(told->childCount(), 3);
    EXPECT_EQ(told->child(0)->text(QAccessible::Name), "AUG99: Sales 1,110");
    EXPECT_EQ(told->child(2)->text(QAccessible::Name), "OCT99: Sales 512, Projected 388");
    EXPECT_EQ(told->child(3), nullptr);
    EXPECT_EQ(told->child(-1), nullptr);
    EXPECT_EQ(told->child(1)->role(), QAccessible::ListItem);
    EXPECT_EQ(told->child(1)->parent(), told);
    EXPECT_EQ(told->indexOfChild(told->child(1)), 1);
    EXPECT_EQ(told->child(1)->rect().topLeft(), chart.mapToGlobal(chart.pointRect(1).topLeft()));
    const QPoint inSecond = told->child(1)->rect().center();
    EXPECT_EQ(told->childAt(inSecond.x(), inSecond.y()), told->child(1));
}

TEST(ChartAccessible, NamesAPointInFull)
{
    ShownChart chart;
    Chart content = threeMonths();
    content.labels = {u"A99", u"S99", u"O99", u""};
    content.fullLabels = threeMonths().labels;
    chart.setChart(content);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&chart);
    EXPECT_EQ(told->child(0)->text(QAccessible::Name), "AUG99: Sales 1,110");
}

TEST(ChartAccessible, FocusFollowsTheCurrentPoint)
{
    ShownChart chart;
    ASSERT_TRUE(chart.hasFocus());
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&chart);
    EXPECT_EQ(told->focusChild(), nullptr);
    chart.press(Qt::Key_End);
    EXPECT_EQ(told->focusChild(), told->child(2));
    EXPECT_TRUE(told->child(2)->state().focused);
    EXPECT_FALSE(told->child(1)->state().focused);
}

TEST(ChartAccessible, ReflectsNewContent)
{
    ShownChart chart;
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&chart);
    QAccessibleInterface* third = told->child(2);
    Chart shorter = threeMonths();
    shorter.series = {{7, 8}};
    shorter.labels = {u"AUG99", u"SEP99"};
    shorter.titles[1] = u"Profit";
    chart.setChart(shorter);
    EXPECT_EQ(told->childCount(), 2);
    EXPECT_EQ(told->text(QAccessible::Name), "Profit, Product: 4711");
    EXPECT_EQ(told->child(1)->text(QAccessible::Name), "SEP99: Profit 8");
    EXPECT_FALSE(third->isValid());
    EXPECT_TRUE(third->text(QAccessible::Name).isEmpty());
}

} // namespace plotvue
