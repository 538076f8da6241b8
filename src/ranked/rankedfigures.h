// A ranked capture, read. No window, no file: text in, texts and numbers out.
#pragma once

#include "ranked/rankedscreen.h"

namespace plotvue {

struct RankedFigures {
    bool accepted = false; // whether the capture holds the title of the screen; where not, nothing was read

    std::vector<TextSpan> lines;     // views of the capture, each with its carriage return; none is blank
    std::array<Text, 4> texts{};     // of the whole screen; the first goes into every record
    std::array<double, 2> numbers{}; // of the whole screen
    std::array<int, 2> counts{};     // the number of rows of each grid, which LineRule::then counts
    int currentRank = 0;             // of the entry to which the next lines belong; 0 before the first

    // By rank. Throws Failure outside 1 to 100.
    Entry& entry(int rank);
    const Entry& entry(int rank) const;
    Entry& currentEntry() { return entry(currentRank); }

    // By number, from 1. Empty where the screen has no such line.
    TextSpan line(int number) const;

private:
    std::array<Entry, maxRanks> entries_{};
};

// Throws Failure for a rank outside 1 to 100 and for a number too large for a double.
RankedFigures readRanked(const RankedScreen& screen, TextSpan capture);

// What most screens do with a "RANK:" line: the entry whose rank is in columns 6 to 8 becomes the current
// one. Throws Failure when the rank does not fit into 16 bits.
void openRank(RankedFigures& figures, TextSpan line);

// The ranks of the entries in a grid, from its first row to its last: as many as the grid's count. Throws
// Failure when fewer of the ranks 1 to 100 belong in the grid.
std::vector<int> ranksIn(const RankedGrid& grid, const RankedFigures& figures);

// The number of each entry's first line on the screen. An entry that is not found gets the line of the one
// before it. Throws Failure when the first one is not found.
std::vector<int> firstLines(const std::vector<int>& ranks, const Key& key, const RankedFigures& figures);

} // namespace plotvue
