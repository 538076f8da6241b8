// A ranked analysis, said as data: what its list window takes from the capture, what its grids show, and what
// it hands to the drill-down window. Columns, ranks and lines count from 1; -1 and 0 say "none" where noted.
#pragma once

#include "platform/declaration.h"

#include <array>
#include <optional>

namespace plotvue {

inline constexpr int mostRanks = 100;

// What is kept of an entry. Slots are named by each analysis; an entry never filled has zeros and empty
// texts.
struct Entry {
    std::array<double, 4> numbers{};
    std::array<Text, 4> texts{};
};

struct RankedReading;

// A field of a line: where it goes and which columns it takes.
struct Taken {
    enum class To { EntryNumber, EntryText, PageNumber, PageText } to;
    int slot;
    Position column;
    Position length = toTheEnd; // to the end: less the line's last character
};

// A line that holds `text` is taken; every marker is tested on every line, in their order.
struct Marker {
    TextSpan text{};
    enum class Opens {
        Nothing,
        Rank,     // the entry whose rank stands in columns 6 to 8
        NextEntry // the entry behind the last one opened
    } opens = Opens::Nothing;
    std::vector<Taken> takes{};
    void (*then)(RankedReading&, TextSpan line) = nullptr; // what only this analysis does with the line
    bool keyOfPage = false; // instead of `text`: the first 5 characters of page text 0 as it stands now
};

// A part of what tells one entry from the others.
struct KeyPart {
    bool number;     // compared by value, otherwise to the letter
    int gridColumn;  // from 0: where a clicked row shows it
    int slot;        // of the entry's numbers or texts
    Position column; // on the entry's first screen line
    Position length;
};

struct Key {
    std::vector<KeyPart> parts;
    TextSpan lineBegins{};   // what the entry's first line must begin with
    TextSpan recordBegins{}; // the same in the list file
};

struct GridColumn {
    enum class Shows { RowNumber, NumberSlot, TextSlot } shows;
    int slot = 0;
};

struct RankedGrid {
    GridBox box;
    std::optional<PictureBox> picture; // beside the grid
    std::vector<GridColumn> columns;
    int count;                                                             // which of the reading's counts
    enum class Holds { All, NotNegative, NotPositive } holds = Holds::All; // of the entries' number 0
};

struct RankedAnalysis {
    Name window;
    TextSpan caption;
    std::vector<Item> heading; // labels and text boxes above the grids
    TextSpan tips{};           // what the Tips button says; empty: there is none
    TextSpan title;            // marks the capture
    int mostLines = 500;
    std::vector<Marker> markers;
    Text pageAtStart{}; // page text 0 before any line
    std::vector<RankedGrid> grids;
    std::map<Name, Text (*)(const RankedReading&)> summary; // texts of the heading's controls
    Key key;
    int linesAnEntry; // on the screen and, behind page text 0, in a record
};

} // namespace plotvue
