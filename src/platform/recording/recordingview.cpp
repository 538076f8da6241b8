#include "platform/recording/recordingview.h"

#include <algorithm>
#include <stdexcept>

namespace plotvue {

void RecordingOptions::addFrame(const OptionFrame& frame)
{
    for (const Option& option : frame.options) {
        state_.options.push_back({option.index, Text(option.caption), true});
        frameOf_[option.index] = frames_;
    }
    ++frames_;
    choose(frame.chosen);
}

void RecordingOptions::choose(int index)
{
    const int frame = frameOf_.at(index);
    std::erase_if(state_.chosen, [&](int other) { return frameOf_.at(other) == frame; });
    state_.chosen.insert(std::upper_bound(state_.chosen.begin(), state_.chosen.end(), index), index);
}

int RecordingOptions::chosen(int frame) const
{
    for (const int index : state_.chosen)
        if (frameOf_.at(index) == frame)
            return index;
    throw std::out_of_range("no such frame");
}

OptionState& RecordingOptions::option(int index)
{
    const auto at = std::find_if(state_.options.begin(), state_.options.end(),
                                 [&](const OptionState& option) { return option.index == index; });
    if (at == state_.options.end())
        throw std::out_of_range("no such option");
    return *at;
}

void RecordingOptions::setCaption(int index, TextSpan caption)
{
    option(index).caption = caption;
}

void RecordingOptions::setVisible(int index, bool visible)
{
    option(index).visible = visible;
}

void RecordingGrid::setRows(int rows)
{
    state_.rows = rows;
    state_.cells.resize(static_cast<std::size_t>(std::max(rows - 1, 0)),
                        std::vector<Text>(static_cast<std::size_t>(state_.columns)));
}

void RecordingGrid::setFormat(TextSpan format)
{
    state_.format = format;
    state_.columns = columnsOf(format);
    for (std::vector<Text>& row : state_.cells)
        row.resize(static_cast<std::size_t>(state_.columns));
}

void RecordingGrid::setCell(int row, int column, TextSpan text)
{
    state_.cells.at(static_cast<std::size_t>(row) - 1).at(static_cast<std::size_t>(column)) = text;
}

Text RecordingGrid::cell(int row, int column) const
{
    return state_.cells.at(static_cast<std::size_t>(row) - 1).at(static_cast<std::size_t>(column));
}

RecordingView::RecordingView(const Declaration& declaration, const Handlers& handlers,
                             std::function<void()> close)
    : handlers_(handlers),
      close_(std::move(close))
{
    state_.caption = declaration.caption;
    forEachControl(declaration.content, [this](const auto& control) {
        if constexpr (requires { add(control); })
            add(control);
    });
}

void RecordingView::add(const Button& button)
{
    state_.controls.emplace(button.name, ButtonState{Text(button.caption)});
}

void RecordingView::add(const Label& label)
{
    state_.controls.emplace(label.name, LabelState{Text(label.text)});
}

void RecordingView::add(const TextBox& box)
{
    state_.controls.emplace(box.name, TextBoxState{});
}

void RecordingView::add(const ListBox& list)
{
    state_.controls.emplace(list.name, ListState{{list.items.begin(), list.items.end()}});
}

void RecordingView::add(const OptionFrame& frame)
{
    auto& state = state_.controls.try_emplace(std::string(frame.group), OptionsState{}).first->second;
    options_.try_emplace(frame.group, std::get<OptionsState>(state)).first->second.addFrame(frame);
}

void RecordingView::add(const ChartBox& chart)
{
    ChartControl& control = charts_[chart.name];
    for (const auto& [position, title] : chart.titles)
        control.SetTitle(position, title);
}

void RecordingView::add(const GridBox& grid)
{
    auto& state = state_.controls.try_emplace(std::string(grid.name), GridState{}).first->second;
    RecordingGrid& control = grids_.try_emplace(grid.name, std::get<GridState>(state)).first->second;
    control.setFormat(grid.format);
    control.setRows(1);
}

void RecordingView::setText(Name control, TextSpan text)
{
    ControlState& state = state_.controls.at(std::string(control));
    if (auto* label = std::get_if<LabelState>(&state))
        label->text = text;
    else
        std::get<TextBoxState>(state).text = text;
}

ViewState RecordingView::state() const
{
    ViewState result = state_;
    for (const auto& [name, chart] : charts_)
        result.controls[std::string(name)] = chart.content();
    return result;
}

void RecordingView::choose(Name group, int index)
{
    options_.at(group).choose(index);
    run(group, index);
}

void RecordingView::run(Name control, int index) const
{
    // A copy: the handler may unload the window and with it this view.
    if (const auto at = handlers_.find(control); at != handlers_.end()) {
        const auto handler = at->second;
        handler(index);
    }
}

void RecordingView::close()
{
    const auto close = close_;
    close();
}

} // namespace plotvue
