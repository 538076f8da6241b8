#include "platform/recording/recordingview.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace plotvue {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A view with every kind of control.
RecordingView everything(
    const Handlers& handlers = {}, std::function<void()> close = [] {})
{
    const Declaration declaration{
        .name = "frmAll",
        .caption = u"All",
        .content = {Box::Direction::Column,
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
                     {ChartBox{.name = "ChartA", .titles = {{2, u"by design"}}}},
                     {GridBox{.name = "GridA", .spokenName = u"A", .format = u"<One|Two |Three"}},
                     {PictureBox{.name = "PicA", .spokenName = u"A", .shows = PictureBox::Shows::Gain}},
                     {Space{}, 1}}}};
    return {declaration, handlers, std::move(close)};
}

TEST(RecordingViews, ShowWhatWasDeclared)
{
    const ViewState state = everything().state();
    EXPECT_EQ(state.caption, u"All");
    EXPECT_EQ(state.controls.size(), 7u); // pictures and spaces are none
    EXPECT_EQ(std::get<ButtonState>(state.controls.at("cmdA")).caption, u"&A");
    EXPECT_EQ(std::get<LabelState>(state.controls.at("lblA")).text, u"label");
    EXPECT_EQ(std::get<TextBoxState>(state.controls.at("txtA")).text, u"");
    EXPECT_THAT(std::get<ListState>(state.controls.at("lstA")).items, ElementsAre(u"one", u"two"));
    EXPECT_EQ(std::get<ChartContent>(state.controls.at("ChartA")).titles.at(2), u"by design");
    EXPECT_EQ(std::get<GridState>(state.controls.at("GridA")).columns, 3);
    EXPECT_EQ(std::get<GridState>(state.controls.at("GridA")).rows, 1);
}

TEST(RecordingViews, HaveOneChosenOptionAFrame)
{
    RecordingView view = everything();
    const auto chosen = [&] { return std::get<OptionsState>(view.state().controls.at("optA")).chosen; };
    EXPECT_THAT(chosen(), ElementsAre(0, 3));
    view.choose("optA", 2);
    EXPECT_THAT(chosen(), ElementsAre(0, 2));
    view.choose("optA", 1);
    EXPECT_THAT(chosen(), ElementsAre(1, 2));
    EXPECT_EQ(view.options("optA").chosen(), 1);
    EXPECT_EQ(view.options("optA").chosen(1), 2);
    EXPECT_THROW(view.options("optA").chosen(2), std::out_of_range);
}

TEST(RecordingViews, KeepOptionsInTheirPlaces)
{
    RecordingView view = everything();
    view.options("optA").setVisible(2, false);
    view.options("optA").setCaption(1, u"new");
    const auto state = std::get<OptionsState>(view.state().controls.at("optA"));
    std::vector<int> indexes;
    for (const OptionState& option : state.options) {
        indexes.push_back(option.index);
        EXPECT_EQ(option.visible, option.index != 2);
        EXPECT_EQ(option.caption == u"new", option.index == 1);
    }
    EXPECT_THAT(indexes, ElementsAre(1, 0, 2, 3));
}

TEST(RecordingViews, TellTheHandlerWhatWasUsed)
{
    std::vector<std::pair<std::string, int>> used;
    Handlers handlers;
    for (const Name name : {"cmdA", "optA", "GridA"})
        handlers[name] = [&used, name](int index) { used.emplace_back(name, index); };
    bool closed = false;
    RecordingView view = everything(handlers, [&] { closed = true; });
    view.press("cmdA");
    view.choose("optA", 2);
    view.choose("optA", 2);
    view.clickRow("GridA", 4);
    view.close();
    EXPECT_THAT(used, ElementsAre(std::pair("cmdA", 0), std::pair("optA", 2), std::pair("optA", 2),
                                  std::pair("GridA", 4)));
    EXPECT_TRUE(closed);
}

TEST(RecordingViews, HoldAGridOfTextUnderItsHeadings)
{
    RecordingView view = everything();
    GridControl& grid = view.grid("GridA");
    grid.setRows(3);
    grid.setCell(1, 0, u"a");
    grid.setCell(2, 2, u"c");
    EXPECT_EQ(grid.cell(1, 0), u"a");
    EXPECT_EQ(grid.cell(1, 1), u"");
    const auto state = std::get<GridState>(view.state().controls.at("GridA"));
    EXPECT_EQ(state.rows, 3);
    EXPECT_THAT(state.cells, ElementsAre(ElementsAre(u"a", u"", u""), ElementsAre(u"", u"", u"c")));
    grid.setRows(2);
    grid.setRows(3);
    EXPECT_EQ(grid.cell(2, 2), u"");
    EXPECT_THROW(grid.setCell(3, 0, u"x"), std::out_of_range);
}

TEST(RecordingViews, NamesThatWereNotDeclaredAreAMistake)
{
    RecordingView view = everything();
    EXPECT_THROW(view.chart("ChartB"), std::out_of_range);
    EXPECT_THROW(view.grid("GridB"), std::out_of_range);
    EXPECT_THROW(view.options("optB"), std::out_of_range);
    EXPECT_THROW(view.options("optA").setVisible(9, true), std::out_of_range);
    EXPECT_THROW(view.setText("txtB", u"x"), std::out_of_range);
}

TEST(RecordingViews, TakeTextsAndACaption)
{
    RecordingView view = everything();
    view.setText("lblA", u"new");
    view.setText("txtA", u"text");
    view.setCaption(u"Other");
    EXPECT_EQ(view.state().caption, u"Other");
    EXPECT_EQ(std::get<LabelState>(view.state().controls.at("lblA")).text, u"new");
    EXPECT_EQ(std::get<TextBoxState>(view.state().controls.at("txtA")).text, u"text");
}

TEST(Charts, NewDataReplacesTheOld)
{
    ChartControl chart;
    ChartArrayData first;
    first.AddArray(std::vector<double>{1, 2});
    first.AddArray(std::vector<double>{3, 4});
    first.AddArray(std::vector<Text>{u"A", u"B"});
    chart.SetChartData(first);
    EXPECT_THAT(chart.content().series, ElementsAre(ElementsAre(1, 2), ElementsAre(3, 4)));
    EXPECT_THAT(chart.content().labels, ElementsAre(u"A", u"B"));
    ChartArrayData second;
    second.AddArray(std::vector<std::int32_t>{-2147483647 - 1, 5});
    chart.SetChartData(second);
    EXPECT_THAT(chart.content().series, ElementsAre(ElementsAre(-2147483648.0, 5)));
    EXPECT_THAT(chart.content().labels, IsEmpty());
}

TEST(Charts, NothingIsSetUntilItIsSet)
{
    const ChartControl chart;
    EXPECT_TRUE(chart.content().titles.empty());
    EXPECT_FALSE(chart.content().decimals);
    EXPECT_FALSE(chart.content().axisMin);
    EXPECT_FALSE(chart.content().axisMax);
    EXPECT_THAT(chart.content().series, IsEmpty());
}

TEST(Charts, TitlesStayByPosition)
{
    ChartControl chart;
    chart.SetTitle(1, u"Sales");
    chart.SetTitle(2, u"Diesel");
    chart.SetTitle(1, u"Profit");
    EXPECT_EQ(chart.content().titles, (std::map<int, Text>{{1, u"Profit"}, {2, u"Diesel"}}));
}

TEST(Charts, SettingsOutliveNewData)
{
    ChartControl chart;
    chart.SetValueDecimals(2);
    chart.SetSeriesLegend(0, u"Volume");
    chart.SetSeriesColor(0, {0, 255, 0});
    chart.SetAxisMin(-5);
    chart.SetAxisMax(10);
    chart.ShowSeries(1, false);
    chart.SetChartData({});
    EXPECT_EQ(chart.content().decimals, 2);
    EXPECT_EQ(chart.content().legends.at(0), u"Volume");
    EXPECT_EQ(chart.content().colours.at(0), (Colour{0, 255, 0}));
    EXPECT_EQ(chart.content().axisMin, -5);
    EXPECT_EQ(chart.content().axisMax, 10);
    EXPECT_EQ(chart.content().hidden, (std::set<int>{1}));
    chart.ShowSeries(1, true);
    chart.ClearLegends();
    EXPECT_TRUE(chart.content().hidden.empty());
    EXPECT_TRUE(chart.content().legends.empty());
}

} // namespace
} // namespace plotvue
