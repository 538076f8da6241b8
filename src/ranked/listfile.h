// The list file as the drill-down window walks it, and the key of the entry that it shows.
#pragma once

#include "ranked/drilldown.h"
#include "ranked/exchange.h"

namespace plotvue {

// The key's parts in their order: a number or a text each.
using KeyValue = std::variant<double, Text>;
using KeyValues = std::vector<KeyValue>;

// Throws Failure when the chosen-row file cannot be read or written.
KeyValues readChosenRow(const RankedAnalysis& analysis);
void writeChosenRow(const RankedAnalysis& analysis, const Record& record);

class ListFile {
public:
    // Throws Failure when the list file cannot be read.
    explicit ListFile(const RankedAnalysis& analysis) : analysis_(analysis), reader_(listFile) {}

    // Reads records until one has the key; when none of the first `most` has it, the last of them is the one.
    // Throws Failure when the file ends before that.
    const Record& find(const KeyValues& key, int most);

    int position() const { return position_; } // of the record found, from 1

    const Record& previous() const { return before_; } // the record in front of the one found
    const Record& next();                              // Throws Failure behind the last record.

private:
    bool matches(const KeyValues& key) const;

    const RankedAnalysis& analysis_;
    RecordReader reader_;
    Record before_, record_;
    int position_ = 0;
};

} // namespace plotvue
