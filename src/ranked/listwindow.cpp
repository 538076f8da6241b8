#include "ranked/listwindow.h"

#include "capture/number.h"
#include "ranked/exchange.h"

namespace plotvue {

Declaration RankedListWindow::declare() const
{
    std::vector<Item> buttons{{Space{}, 1}};
    if (!analysis_.tips.empty())
        buttons.push_back({Button{.name = "cmdTips", .caption = u"Tips", .shortcut = u"F1"}});
    buttons.push_back({Button{.name = "cmdPrint", .caption = u"&Print", .shortcut = u"Ctrl+P"}});
    buttons.push_back({Button{.name = "cmdExit", .caption = u"Exit", .shortcut = u"Esc"}});

    std::vector<Item> content = analysis_.heading;
    for (const RankedGrid& grid : analysis_.grids) {
        if (grid.picture)
            content.push_back(row({{*grid.picture}, {grid.box, 1}}, 1));
        else
            content.push_back({grid.box, 1});
    }
    content.push_back(row(std::move(buttons)));
    return {.name = analysis_.window,
            .caption = analysis_.caption,
            .content = {Box::Direction::Column, std::move(content)},
            .width = 860,
            .height = 620};
}

Handlers RankedListWindow::handlers()
{
    Handlers handlers{{"cmdTips", [this](int) { cmdTips_Click(); }},
                      {"cmdPrint", [this](int) { cmdPrint_Click(); }},
                      {"cmdExit", [this](int) { cmdExit_Click(); }}};
    for (const RankedGrid& grid : analysis_.grids)
        handlers[grid.box.name] = [this, &grid](int row) { MSFlexGrid_Click(grid, row); };
    return handlers;
}

void RankedListWindow::Form_Load()
{
    capture_ = RecordReader(scratchFile).text();
    reading_ = readCapture(capture_, [this] { return readRanked(analysis_, capture_); });
    if (!reading_.accepted)
        return cmdExit_Click();
    for (const auto& [control, text] : analysis_.summary)
        controls().text(control).set(text(reading_));
    for (const RankedGrid& grid : analysis_.grids)
        fill(grid);
}

void RankedListWindow::fill(const RankedGrid& grid)
{
    const std::vector<int> ranks = ranksIn(grid, reading_);
    controls().grid(grid.box.name).change([&](Grid& control) {
        control.setRows(static_cast<int>(ranks.size()) + 1);
        for (std::size_t i = 0; i < ranks.size(); ++i) {
            const Entry& entry = reading_.entry(ranks[i]);
            const int row = static_cast<int>(i) + 1;
            for (std::size_t c = 0; c < grid.columns.size(); ++c) {
                const GridColumn& column = grid.columns[c];
                const auto slot = static_cast<std::size_t>(column.slot);
                const bool isText = column.shows == GridColumn::Shows::TextSlot;
                const bool isRow = column.shows == GridColumn::Shows::RowNumber;
                control.setCell(row, static_cast<int>(c),
                                isText ? entry.texts[slot] : plainNumber(isRow ? row : entry.numbers[slot]));
            }
        }
    });
}

void RankedListWindow::MSFlexGrid_Click(const RankedGrid& grid, int row)
{
    writeChosenRow(grid, row);
    writeList(grid);
    drillDown_.show();
}

void RankedListWindow::writeChosenRow(const RankedGrid& grid, int row)
{
    RecordWriter record;
    for (const KeyPart& part : analysis_.key.parts) {
        const Text cell = controls().grid(grid.box.name)->cell(row, part.gridColumn);
        part.number ? record.number(leadingNumber(cell)) : record.text(cell);
    }
    record.endRecord().writeTo(chosenRowFile);
}

void RankedListWindow::writeList(const RankedGrid& grid) const
{
    RecordWriter records;
    for (const int line : linesOf(ranksIn(grid, reading_), analysis_.key, reading_)) {
        records.text(reading_.page[0]);
        for (int i = 0; i < analysis_.linesAnEntry; ++i)
            records.text(reading_.line(line + i));
        records.endRecord();
    }
    records.writeTo(listFile);
}

} // namespace plotvue
