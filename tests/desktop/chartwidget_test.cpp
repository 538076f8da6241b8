#include "desktop/chartsample.h"

#include <gtest/gtest.h>

namespace plotvue {

TEST(ChartWidget, KeysMoveTheCurrentPoint)
{
    ShownChart chart;
    EXPECT_EQ(chart.currentPoint(), -1);
    EXPECT_TRUE(chart.press(Qt::Key_Right));
    EXPECT_EQ(chart.currentPoint(), 0);
    EXPECT_TRUE(chart.press(Qt::Key_Left)) << "no point is left, but the chart still takes the key";
    EXPECT_EQ(chart.currentPoint(), 0);
    chart.press(Qt::Key_Right);
    EXPECT_EQ(chart.currentPoint(), 1);
    chart.press(Qt::Key_End);
    EXPECT_EQ(chart.currentPoint(), 2) << "the empty slot is not a point";
    chart.press(Qt::Key_Right);
    EXPECT_EQ(chart.currentPoint(), 2);
    chart.press(Qt::Key_Home);
    EXPECT_EQ(chart.currentPoint(), 0);
}

TEST(ChartWidget, LeftStartsAtTheNewestPoint)
{
    ShownChart chart;
    chart.press(Qt::Key_Left);
    EXPECT_EQ(chart.currentPoint(), 2);
}

TEST(ChartWidget, EscapeHidesTheReadOutThenPropagates)
{
    ShownChart chart;
    chart.press(Qt::Key_Home);
    EXPECT_TRUE(chart.press(Qt::Key_Escape));
    EXPECT_EQ(chart.currentPoint(), -1);
    EXPECT_FALSE(chart.press(Qt::Key_Escape));
}

TEST(ChartWidget, OtherKeysPropagate)
{
    ShownChart chart;
    EXPECT_FALSE(chart.press(Qt::Key_Up));
    EXPECT_FALSE(chart.press(Qt::Key_Return));
    EXPECT_FALSE(chart.press(Qt::Key_Left, Qt::AltModifier));
    EXPECT_TRUE(chart.press(Qt::Key_Left, Qt::KeypadModifier));
    chart.setChart({});
    EXPECT_FALSE(chart.press(Qt::Key_Home));
}

TEST(ChartWidget, HoverAnywhereInASlotSelectsItsPoint)
{
    ShownChart chart;
    const QRect second = chart.pointRect(1);
    chart.moveMouse(second.topLeft() + QPoint(3, 3));
    EXPECT_EQ(chart.currentPoint(), 1);
    chart.moveMouse(second.bottomRight() + QPoint(3, 3));
    EXPECT_EQ(chart.currentPoint(), 2);
    chart.moveMouse(chart.pointRect(3).center());
    EXPECT_EQ(chart.currentPoint(), -1);
    chart.moveMouse(second.center());
    chart.takeMouseAway();
    EXPECT_EQ(chart.currentPoint(), -1);
}

TEST(ChartWidget, APointChosenByKeyStaysWhenTheMouseLeaves)
{
    ShownChart chart;
    chart.moveMouse(chart.pointRect(0).center());
    chart.press(Qt::Key_Right);
    EXPECT_EQ(chart.currentPoint(), 1);
    chart.takeMouseAway();
    EXPECT_EQ(chart.currentPoint(), 1);
}

TEST(ChartWidget, TheReadOutIsHiddenWhenTheFocusLeaves)
{
    ShownChart chart;
    chart.press(Qt::Key_Home);
    QFocusEvent awayFromWindow(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&chart, &awayFromWindow);
    EXPECT_EQ(chart.currentPoint(), 0);
    QFocusEvent toNeighbour(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&chart, &toNeighbour);
    EXPECT_EQ(chart.currentPoint(), -1);
}

TEST(ChartWidget, HasNoCurrentPointIfNewContentLacksIt)
{
    ShownChart chart;
    chart.press(Qt::Key_End);
    Chart shorter = threeMonths();
    shorter.labels.resize(1);
    shorter.series = {{1}};
    chart.setChart(shorter);
    EXPECT_EQ(chart.currentPoint(), -1);
    chart.setCurrentPoint(7);
    EXPECT_EQ(chart.currentPoint(), -1);
}

TEST(ChartWidget, UpdatesItsLayoutWhenItsSizeOrFontChanges)
{
    ShownChart chart;
    const QRect before = chart.pointRect(2);
    chart.resize(900, 400);
    EXPECT_GT(chart.pointRect(2).left(), before.left());
    const QRect wide = chart.pointRect(2);
    QFont larger = chart.font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    chart.setFont(larger);
    EXPECT_GT(chart.pointRect(2).top(), wide.top());
}

} // namespace plotvue
