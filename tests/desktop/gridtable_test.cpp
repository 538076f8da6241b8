// The rows of a list as the user sees and chooses them.
#include "desktop/desktopfixture.h"
#include "desktop/grid.h"

#include <QApplication>

#include <gmock/gmock.h>
#include <set>

namespace plotvue {

namespace {

using testing::ElementsAre;

class GridTableTest : public test::DesktopTest {
protected:
    GridTableTest()
    {
        every.widget().resize(1000, 1000); // makes room for all rows
        every.widget().activateWindow();
        QCoreApplication::processEvents();
    }

    // Gives the list this number of rows, all with this name.
    void fill(int rows, const Text& name)
    {
        every.controls->grid("Grid1").change([&](Grid& grid) {
            grid.setRows(rows + 1);
            for (int row = 1; row <= rows; ++row)
                grid.setCell(row, 1, name);
        });
        QCoreApplication::processEvents();
    }

    // The cell with the name of a row, in viewport coordinates.
    QRect place(int row) const { return table.visualRect(table.model()->index(row, 1)); }

    // The number of colours in the cell with the name of a row, including the background.
    int colours(int row) const
    {
        const QImage image = table.viewport()->grab(place(row)).toImage();
        std::set<QRgb> found;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found.insert(image.pixel(x, y));
        return int(found.size());
    }

    Built every = shown();
    GridTable& table = *every.widget().findChild<GridTable*>();
};

TEST_F(GridTableTest, ShowsTheRowsThatItHas)
{
    const QRect room = table.viewport()->rect();
    for (const int rows : {2, 6, 3}) {
        fill(rows, u"ACME");
        for (int row = 0; row < rows; ++row) {
            EXPECT_TRUE(room.contains(place(row))) << row << " of " << rows;
            EXPECT_GT(place(row).height(), 10);
            EXPECT_GT(colours(row), 2) << row << " of " << rows;
        }
        EXPECT_FALSE(place(rows).isValid());
        EXPECT_EQ(table.rowAt(place(rows - 1).bottom() + 2), -1) << "below the last row";
    }
}

TEST_F(GridTableTest, IsPaintedAgainWhenACellChanges)
{
    fill(2, u"ACME");
    test::Paintings paintings;
    table.viewport()->installEventFilter(&paintings);
    fill(2, u"OTHER");
    EXPECT_GT(paintings.count, 0);
}

TEST_F(GridTableTest, TabMarksTheRowThatEnterChooses)
{
    fill(3, u"ACME");
    QWidget* before = table.previousInFocusChain();
    while (!(before->focusPolicy() & Qt::TabFocus) || table.isAncestorOf(before))
        before = before->previousInFocusChain();
    before->setFocus();
    const QRgb plain = table.viewport()->grab(place(0)).toImage().pixel(0, 0);
    type(*before, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &table);
    const QColor marked = table.viewport()->grab(place(0)).toImage().pixelColor(0, 0);
    EXPECT_NE(marked.rgb(), plain);
    EXPECT_EQ(marked, table.palette().color(QPalette::Active, QPalette::Highlight));
    type(table, Qt::Key_Return);
    EXPECT_THAT(ran, ElementsAre("Grid1 1"));
}

TEST_F(GridTableTest, EitherEnterKeyOnARowCountsAsAClick)
{
    fill(3, u"ACME");
    table.setCurrentIndex(table.model()->index(2, 0));
    type(table, Qt::Key_Return);
    type(table, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_THAT(ran, ElementsAre("Grid1 3", "Grid1 3"));
}

} // namespace

} // namespace plotvue
