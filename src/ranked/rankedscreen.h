// A ranked screen of the host, described as data: what its list window takes from each line of the capture,
// what its grids show, and which lines it hands to the drill-down window. Columns, ranks and lines count
// from 1.
#pragma once

#include "platform/declaration.h"
#include "ranked/key.h"

#include <optional>

namespace plotvue {

inline constexpr int maxRanks = 100; // Kept: a hundred ranks (docs/kept.md).

struct RankedFigures;

// A field of a line: its columns, and the slot of the current entry or of the screen that keeps it.
struct LineField {
    enum class To { EntryNumber, EntryText, ScreenNumber, ScreenText } to;
    int slot;
    Position column;
    Position length = toTheEnd; // toTheEnd: up to the line's last character, which is left out
};

// What is taken from every line that holds the marker. An empty marker takes every line.
struct LineRule {
    TextSpan marker{};
    bool afterRank = false; // the rule leaves out the lines before the first rank
    void (*open)(RankedFigures&, TextSpan line) = nullptr; // makes another entry the current one
    std::vector<LineField> fields{};
    void (*then)(RankedFigures&, TextSpan line) = nullptr; // runs after the fields are taken
};

struct GridColumn {
    enum class Content { RowNumber, NumberSlot, TextSlot } content;
    int slot = 0;
};

struct RankedGrid {
    GridBox box;
    std::vector<GridColumn> columns;
    int count = 0;                         // index in RankedFigures::counts
    bool (*lists)(const Entry&) = nullptr; // null: lists every entry
    std::optional<PictureBox> picture{};   // beside the grid
};

// A record of the list file: first RankedFigures::texts[0], a text of the whole screen, then the lines of one
// entry.
using EntryLines = std::vector<Text>;

// A button that shows a message box about a record of the list file. A list window passes an empty record.
struct MessageButton {
    Button button;
    TextSpan title{};
    Text (&text)(const EntryLines&); // a reference, so that it cannot be forgotten
};

struct RankedScreen {
    Name window;
    // Of the list and the drill-down window. Kept: spellings of the caption (docs/kept.md).
    TextSpan caption = u"PlotVue";
    std::vector<Item> heading{};               // labels and text boxes above the grids
    std::vector<MessageButton> buttons{};      // of the list window
    TextSpan title;                            // a capture without it is refused
    int maxLines = 500;                        // Kept: lines after the 500th (docs/kept.md).
    void (*prepare)(RankedFigures&) = nullptr; // runs before the first line
    std::vector<LineRule> rules;               // tested on every line, in this order
    std::vector<RankedGrid> grids;
    std::map<Name, Text (*)(const RankedFigures&)> summary{}; // by control of the heading: its text
    Key key{};
    int linesAnEntry = 0; // in a record
};

} // namespace plotvue
