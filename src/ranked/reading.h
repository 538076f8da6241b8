// A ranked capture read into its tables: pure, text in, figures out.
#pragma once

#include "ranked/analysis.h"

namespace plotvue {

// The views in it point into the capture.
struct RankedReading {
    static constexpr int searchedLines = 1000;

    bool accepted = false; // the capture holds the analysis's title

    std::vector<TextSpan> lines; // each with its carriage return; blank ones are none
    std::array<Text, 4> page{};  // texts of the whole screen; 0 goes into every record
    std::array<double, 2> totals{};
    std::array<int, 2> counts{}; // entries a grid
    int current = 0;             // the entry that lines belong to; 0 before the first

    // By rank. Throws Failure outside 1 to 100.
    Entry& entry(int rank);
    const Entry& entry(int rank) const;

    // Throws nothing: lines that the screen does not have are empty.
    TextSpan line(int number) const;

private:
    std::array<Entry, mostRanks> entries_{};
};

// Throws Failure for a rank outside 1 to 100.
RankedReading readRanked(const RankedAnalysis& analysis, TextSpan capture);

// The ranks that a grid lists, in the order of its rows: as many as the grid's count says. Throws Failure
// when the walk passes rank 100.
std::vector<int> ranksIn(const RankedGrid& grid, const RankedReading& reading);

// The screen line on which each of the entries begins. An entry that is not found counts as standing where
// the one before it stands. Throws Failure when the first is not found.
std::vector<int> linesOf(const std::vector<int>& ranks, const Key& key, const RankedReading& reading);

} // namespace plotvue
