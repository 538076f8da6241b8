// The list file and the chosen-row file as the drill-down window reads them.
#pragma once

#include "files/exchange.h"
#include "ranked/rankedscreen.h"

namespace plotvue {

// The key of the entry that the drill-down window shows. Throws Failure when the file cannot be read.
KeyValues readChosenRow(const Key& key);

// Reads the list file from its first record on.
class ListFile {
public:
    // Throws Failure when the list file cannot be read.
    explicit ListFile(const RankedScreen& screen) : screen_(screen), reader_(listFile) {}

    // Reads on until a record has the key, at most to the record number `limit`, and returns the last record
    // that was read. Throws Failure when the file ends before that.
    const EntryLines& readUpTo(const KeyValues& key, int limit);

    int position() const { return position_; }               // of the record read last, from 1
    const EntryLines& previous() const { return previous_; } // the one before the record read last
    const EntryLines& next();                                // Throws Failure after the last record.

private:
    const RankedScreen& screen_;
    RecordReader reader_;
    EntryLines previous_, record_;
    int position_ = 0;
};

} // namespace plotvue
