#include "ranked/listfile.h"

namespace plotvue {

KeyValues readChosenRow(const Key& key)
{
    RecordReader reader(chosenRowFile);
    KeyValues values;
    for (const KeyPart& part : key.parts)
        values.push_back(keyValue(part, reader.next()));
    return values;
}

const EntryLines& ListFile::next()
{
    previous_ = std::move(record_);
    record_.clear();
    for (int field = 0; field <= screen_.linesAnEntry; ++field)
        record_.push_back(reader_.next());
    ++position_;
    return record_;
}

const EntryLines& ListFile::readUpTo(const KeyValues& key, int limit)
{
    // Kept: the hundredth record, two entries alike (docs/kept.md).
    const Key& wanted = screen_.key;
    do
        next();
    while (!(TextSpan(record_[1]).starts_with(wanted.recordStart) && hasKey(record_[1], wanted, key)) &&
           position_ < limit);
    return record_;
}

} // namespace plotvue
