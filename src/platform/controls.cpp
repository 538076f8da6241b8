#include "platform/controls.h"

#include <algorithm>
#include <stdexcept>

namespace plotvue {

OptionGroup::Entry& OptionGroup::option(int index)
{
    const auto at = std::ranges::find(options, index, &Entry::index);
    if (at == options.end())
        throw std::out_of_range("no such option");
    return *at;
}

int OptionGroup::chosenIn(int frame) const
{
    for (const Entry& option : options)
        if (option.frame == frame && std::ranges::binary_search(chosen, option.index))
            return option.index;
    throw std::out_of_range("no such frame");
}

void OptionGroup::choose(int index)
{
    const int frame = option(index).frame;
    std::erase_if(chosen, [&](int other) { return option(other).frame == frame; });
    chosen.insert(std::ranges::upper_bound(chosen, index), index);
}

void Grid::setFormat(TextSpan text)
{
    format = text;
    columns = 1 + static_cast<int>(std::ranges::count(text, u'|'));
    for (std::vector<Text>& row : cells)
        row.resize(static_cast<std::size_t>(columns));
}

void Grid::setRows(int count)
{
    rows = count;
    cells.resize(static_cast<std::size_t>(std::max(count - 1, 0)),
                 std::vector<Text>(static_cast<std::size_t>(columns)));
}

void Grid::setCell(int row, int column, TextSpan text)
{
    cells.at(static_cast<std::size_t>(row) - 1).at(static_cast<std::size_t>(column)) = text;
}

const Text& Grid::cell(int row, int column) const
{
    return cells.at(static_cast<std::size_t>(row) - 1).at(static_cast<std::size_t>(column));
}

Controls::Controls(Declaration declared, ControlsOwner& owner)
    : declaration(std::move(declared)),
      owner_(&owner)
{
    forEachControl(declaration.content, [this](const auto& control) { add(control); });
}

void Controls::add(const OptionFrame& frame)
{
    options_[frame.group].change([&](OptionGroup& group) {
        const int number = group.options.empty() ? 0 : group.options.back().frame + 1;
        for (const Option& option : frame.options)
            group.options.push_back({option.index, Text(option.caption), true, number});
        group.choose(frame.chosen);
    });
}

void Controls::add(const GridBox& box)
{
    grids_[box.name].change([&](Grid& grid) { grid.setFormat(box.format); });
}

std::map<Name, std::vector<int>> Controls::chosenOptions() const
{
    std::map<Name, std::vector<int>> chosen;
    for (const auto& [name, group] : options_)
        chosen[name] = group->chosen;
    return chosen;
}

void Controls::operate(Name control, int index)
{
    if (owner_)
        owner_->operated(control, index);
}

void Controls::press(Name button)
{
    if (!buttons_.contains(button))
        throw std::out_of_range("no such button");
    operate(button, 0);
}

void Controls::clickRow(Name grid, int row)
{
    static_cast<void>(grids_.at(grid));
    operate(grid, row);
}

void Controls::choose(Name group, int index)
{
    options_.at(group).change([index](OptionGroup& options) { options.choose(index); });
    operate(group, index);
}

void Controls::close()
{
    if (owner_)
        owner_->closed();
}

} // namespace plotvue
