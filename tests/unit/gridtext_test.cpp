#include "platform/gridtext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plotvue {

namespace {

Grid grid(TextSpan format, std::vector<std::vector<Text>> cells)
{
    Grid made;
    made.setFormat(format);
    made.setRows(static_cast<int>(cells.size()) + 1);
    made.cells = std::move(cells);
    return made;
}

} // namespace

TEST(GridText, HeadingsKeepTheBlanksThatSetTheWidthOfTheirColumns)
{
    EXPECT_THAT(headingsOf(grid(u"<Rank |Name        |>Total  ", {})),
                testing::ElementsAre(u"Rank ", u"Name        ", u"Total  "));
    EXPECT_THAT(headingsOf(grid(u"", {})), testing::ElementsAre(u""));
}

TEST(GridText, ACellIsOneLineWithoutControlCharacters)
{
    EXPECT_EQ(cellText(u"  1,234.50-\r"), u"1,234.50-");
    EXPECT_EQ(cellText(u"one\rtwo\r\nthree\nfour"), u"one two three four");
    EXPECT_EQ(cellText(Text(u"nul \0 tab\t.", 11)), u"nul  tab.");
}

TEST(GridText, RowsAreATableWithTheHeadings)
{
    EXPECT_EQ(rowsTable(grid(u"<Rank |Name        |>Total  ",
                             {{u"1", u" ACME\tINC\r", u"$1,234"}, {u"", u"", u""}})),
              u"Rank\tName\tTotal\r\n1\tACMEINC\t$1,234\r\n\t\t\r\n");
}

TEST(GridText, WithoutRowsThereIsNothingToCopy)
{
    EXPECT_EQ(rowsTable(grid(u"<Rank |Name", {})), u"");
}

} // namespace plotvue
