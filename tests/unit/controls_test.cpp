#include "platform/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace plotvue {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Declaration everything()
{
    return {.name = "frmAll",
            .caption = u"All",
            .content = {Panel::Direction::Column,
                        {{Button{.name = "cmdA", .caption = u"&A"}},
                         {Label{.name = "lblA", .text = u"label"}},
                         row({{TextBox{.name = "txtA", .spokenName = u"A"}},
                              {ListBox{.name = "lstA", .spokenName = u"A", .items = {u"one", u"two"}}}}),
                         {OptionFrame{.name = "FrameA",
                                      .caption = u"A",
                                      .spokenName = u"A",
                                      .group = "optA",
                                      .options = {{1, u"B"}, {0, u"A"}},
                                      .chosen = 0}},
                         {OptionFrame{.name = "FrameB",
                                      .caption = u"B",
                                      .spokenName = u"B",
                                      .group = "optA",
                                      .options = {{2, u"C"}, {3, u"D"}},
                                      .chosen = 3}},
                         {ChartBox{.name = "ChartA", .chart = {.titles = {{2, u"by design"}}}}},
                         {GridBox{.name = "GridA", .spokenName = u"A", .format = u"<One|Two |Three"}},
                         {PictureBox{.name = "PicA", .spokenName = u"A", .symbol = PictureBox::Symbol::Gain}},
                         {Space{}, 1}}}};
}

class ControlsTest : public testing::Test, private ControlsOwner {
protected:
    std::vector<std::pair<std::string, int>> used;
    Controls controls{everything(), *this};

private:
    void operated(Name control, int index) override { used.emplace_back(control, index); }
    void closed() override { used.emplace_back("close", 0); }
};

TEST_F(ControlsTest, HaveTheDeclaredValues)
{
    EXPECT_EQ(*controls.text("lblA"), u"label");
    EXPECT_EQ(*controls.text("txtA"), u"");
    EXPECT_EQ(controls.chart("ChartA")->titles.at(2), u"by design");
    EXPECT_EQ(controls.grid("GridA")->format, u"<One|Two |Three");
    EXPECT_EQ(controls.grid("GridA")->columns, 3);
    EXPECT_EQ(controls.grid("GridA")->rows, 1);
}

TEST_F(ControlsTest, HaveOneChosenOptionPerFrame)
{
    const Property<OptionGroup>& optA = controls.options("optA");
    EXPECT_THAT(optA->chosen, ElementsAre(0, 3));
    controls.choose("optA", 2);
    EXPECT_THAT(optA->chosen, ElementsAre(0, 2));
    controls.choose("optA", 1);
    EXPECT_THAT(optA->chosen, ElementsAre(1, 2));
    EXPECT_EQ(optA->chosenIn(0), 1);
    EXPECT_EQ(optA->chosenIn(1), 2);
    EXPECT_THROW(optA->chosenIn(2), std::out_of_range);
}

TEST_F(ControlsTest, KeepTheOrderOfTheOptions)
{
    controls.options("optA").change([](OptionGroup& optA) {
        optA.setVisible(2, false);
        optA.setCaption(1, u"new");
    });
    EXPECT_EQ(controls.options("optA")->options,
              (std::vector<OptionGroup::Entry>{
                  {1, u"new", true, 0}, {0, u"A", true, 0}, {2, u"C", false, 1}, {3, u"D", true, 1}}));
}

TEST_F(ControlsTest, TellTheirOwnerWhatIsOperated)
{
    controls.press("cmdA");
    controls.choose("optA", 2);
    controls.choose("optA", 2);
    controls.clickRow("GridA", 4);
    controls.close();
    EXPECT_THAT(used, ElementsAre(std::pair("cmdA", 0), std::pair("optA", 2), std::pair("optA", 2),
                                  std::pair("GridA", 4), std::pair("close", 0)));
}

TEST_F(ControlsTest, CannotBeOperatedWhereTheyAreNot)
{
    EXPECT_THROW(controls.press("GridA"), std::out_of_range);
    EXPECT_THROW(controls.choose("cmdA", 0), std::out_of_range);
    EXPECT_THROW(controls.choose("optA", 4), std::out_of_range);
    EXPECT_THROW(controls.clickRow("cmdA", 1), std::out_of_range);
    EXPECT_THAT(used, IsEmpty());
}

TEST_F(ControlsTest, TellNobodyOnceDisconnected)
{
    controls.disconnect();
    controls.press("cmdA");
    controls.close();
    EXPECT_THAT(used, IsEmpty());
}

TEST_F(ControlsTest, HoldAGridOfTextBelowItsHeadings)
{
    Grid grid = *controls.grid("GridA");
    grid.setRows(3);
    grid.setCell(1, 0, u"a");
    grid.setCell(2, 2, u"c");
    EXPECT_EQ(grid.rows, 3);
    EXPECT_EQ(grid.cell(1, 0), u"a");
    EXPECT_THAT(grid.cells, ElementsAre(ElementsAre(u"a", u"", u""), ElementsAre(u"", u"", u"c")));
    grid.setFormat(u"One|Two");
    EXPECT_THAT(grid.cells, ElementsAre(ElementsAre(u"a", u""), ElementsAre(u"", u"")));
    grid.setRows(2);
    grid.setRows(3);
    EXPECT_EQ(grid.cell(2, 1), u"");
    EXPECT_THROW(grid.setCell(3, 0, u"below"), std::out_of_range);
    EXPECT_THROW(grid.setCell(2, 2, u"beside"), std::out_of_range);
    EXPECT_THROW(grid.setCell(0, 0, u"heading"), std::out_of_range);
}

TEST_F(ControlsTest, ThrowForNamesThatWereNotDeclared)
{
    EXPECT_THROW(controls.chart("ChartB"), std::out_of_range);
    EXPECT_THROW(controls.grid("GridB"), std::out_of_range);
    EXPECT_THROW(controls.options("optB"), std::out_of_range);
    EXPECT_THROW(controls.text("txtB"), std::out_of_range);
    EXPECT_THROW(controls.choose("optA", 9), std::out_of_range);
    EXPECT_THROW(controls.options("optA").change([](OptionGroup& optA) { optA.setVisible(9, true); }),
                 std::out_of_range);
}

TEST_F(ControlsTest, AreDisplayedOncePerChange)
{
    int shown = 0;
    controls.chart("ChartA").changed = [&] { ++shown; };
    controls.chart("ChartA").change([](Chart& chart) {
        chart.SetTitle(1, u"Sales");
        chart.SetAxisMax(10);
    });
    EXPECT_EQ(shown, 1);
    controls.text("lblA").changed = [&] { ++shown; };
    controls.text("lblA").set(u"other");
    EXPECT_EQ(*controls.text("lblA"), u"other");
    EXPECT_EQ(shown, 2);
}

TEST(Charts, NewDataReplacesTheOld)
{
    Chart chart;
    ChartArrayData first;
    first.AddArray(std::vector<double>{1, 2});
    first.AddArray(std::vector<double>{3, 4});
    first.AddArray(std::vector<Text>{u"A", u"B"});
    chart.SetChartData(first);
    EXPECT_THAT(chart.series, ElementsAre(ElementsAre(1, 2), ElementsAre(3, 4)));
    EXPECT_THAT(chart.labels, ElementsAre(u"A", u"B"));
    ChartArrayData second;
    second.AddArray(std::vector<double>{5});
    chart.SetChartData(second);
    EXPECT_THAT(chart.series, ElementsAre(ElementsAre(5)));
    EXPECT_THAT(chart.labels, IsEmpty());
}

TEST(Charts, NothingIsSetAtFirst)
{
    const Chart chart;
    EXPECT_TRUE(chart.titles.empty());
    EXPECT_FALSE(chart.decimals);
    EXPECT_FALSE(chart.axisMin);
    EXPECT_FALSE(chart.axisMax);
    EXPECT_THAT(chart.series, IsEmpty());
}

TEST(Charts, TitlesAreKeptByPosition)
{
    Chart chart;
    chart.SetTitle(1, u"Sales");
    chart.SetTitle(2, u"Diesel");
    chart.SetTitle(1, u"Profit");
    EXPECT_EQ(chart.titles, (std::map<int, Text>{{1, u"Profit"}, {2, u"Diesel"}}));
}

TEST(Charts, SettingsOutliveNewData)
{
    Chart chart;
    chart.SetValueDecimals(2);
    chart.SetSeriesLegend(0, u"Volume");
    chart.SetSeriesColor(0, {0, 255, 0});
    chart.SetAxisMin(-5);
    chart.SetAxisMax(10);
    chart.showSeries(1, false);
    chart.SetChartData({});
    EXPECT_EQ(chart.decimals, 2);
    EXPECT_EQ(chart.legends.at(0), u"Volume");
    EXPECT_EQ(chart.colours.at(0), (Colour{0, 255, 0}));
    EXPECT_EQ(chart.axisMin, -5);
    EXPECT_EQ(chart.axisMax, 10);
    EXPECT_EQ(chart.hidden, (std::set<int>{1}));
    chart.showSeries(1, true);
    chart.clearLegends();
    EXPECT_TRUE(chart.hidden.empty());
    EXPECT_TRUE(chart.legends.empty());
}

} // namespace
} // namespace plotvue
