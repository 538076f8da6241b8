#include "ranked/listwindow.h"

#include "capture/number.h"
#include "ranked/listfile.h"
#include "window/commoncontrols.h"

namespace plotvue {

Declaration RankedListWindow::declare() const
{
    std::vector<Item> buttons{{Space{}, 1}};
    for (const MessageButton& message : screen_.buttons)
        buttons.push_back({message.button});
    buttons.push_back({printButton()});
    // Kept: captions that differ from window to window (docs/kept.md).
    buttons.push_back({exitButton(u"Exit")});

    std::vector<Item> content = screen_.heading;
    for (const RankedGrid& grid : screen_.grids) {
        if (grid.picture)
            content.push_back(row({{*grid.picture}, {grid.box, 1}}, 1));
        else
            content.push_back({grid.box, 1});
    }
    content.push_back(row(std::move(buttons)));
    return {.name = screen_.window,
            .caption = screen_.caption,
            .content = {Panel::Direction::Column, std::move(content)},
            .width = 860,
            .height = 620};
}

Handlers RankedListWindow::handlers()
{
    Handlers handlers{{"cmdPrint", [this](int) { cmdPrint_Click(); }},
                      {"cmdExit", [this](int) { cmdExit_Click(); }}};
    for (const RankedGrid& grid : screen_.grids)
        handlers[grid.box.name] = [this, &grid](int row) { MSFlexGrid_Click(grid, row); };
    for (const MessageButton& message : screen_.buttons)
        handlers[message.button.name] = [this, &message](int) {
            platform().message(message.title, message.text({}));
        };
    return handlers;
}

void RankedListWindow::Form_Load()
{
    capture_ = RecordReader(scratchFile).next(); // Kept: a quote that ends a capture (docs/kept.md).
    figures_ = nameFailedLine(capture_, [this] { return readRanked(screen_, capture_); });
    if (!figures_.accepted)
        return cmdExit_Click();
    for (const auto& [control, text] : screen_.summary)
        controls().text(control).set(text(figures_));
    for (const RankedGrid& grid : screen_.grids)
        fill(grid);
}

void RankedListWindow::fill(const RankedGrid& grid)
{
    const std::vector<int> ranks = ranksIn(grid, figures_);
    controls().grid(grid.box.name).change([&](Grid& control) {
        control.setRows(static_cast<int>(ranks.size()) + 1);
        for (std::size_t i = 0; i < ranks.size(); ++i) {
            const Entry& entry = figures_.entry(ranks[i]);
            const int row = static_cast<int>(i) + 1;
            for (std::size_t c = 0; c < grid.columns.size(); ++c) {
                const GridColumn& column = grid.columns[c];
                const auto slot = static_cast<std::size_t>(column.slot);
                // Kept: row numbers for ranks, numbers without separators (docs/kept.md).
                const bool isText = column.content == GridColumn::Content::TextSlot;
                const bool isRow = column.content == GridColumn::Content::RowNumber;
                control.setCell(row, static_cast<int>(c),
                                isText ? entry.texts.at(slot)
                                       : plainNumber(isRow ? row : entry.numbers.at(slot)));
            }
        }
    });
}

void RankedListWindow::MSFlexGrid_Click(const RankedGrid& grid, int row)
{
    KeyValues clicked;
    for (const KeyPart& part : screen_.key.parts)
        clicked.push_back(keyValue(part, controls().grid(grid.box.name)->cell(row, part.gridColumn)));
    writeRecords(chosenRowFile, {clicked});
    writeList(grid);
    for (DrillDownWindow* other : drillDowns_)
        if (other != &drillDown_)
            other->listReplaced();
    drillDown_.show();
}

void RankedListWindow::writeList(const RankedGrid& grid) const
{
    std::vector<Record> records;
    for (const int line : firstLines(ranksIn(grid, figures_), screen_.key, figures_)) {
        Record& record = records.emplace_back(Record{figures_.texts[0]});
        for (int i = 0; i < screen_.linesAnEntry; ++i)
            record.emplace_back(Text(figures_.line(line + i)));
    }
    writeRecords(listFile, records);
}

} // namespace plotvue
