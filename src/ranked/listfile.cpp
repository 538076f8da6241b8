#include "ranked/listfile.h"

#include "capture/number.h"

namespace plotvue {

namespace {

TextSpan keyField(const KeyPart& part, const Record& record)
{
    return mid(record[1], part.column, part.length);
}

} // namespace

KeyValues readChosenRow(const RankedAnalysis& analysis)
{
    RecordReader reader(chosenRowFile);
    KeyValues values;
    for (const KeyPart& part : analysis.key.parts) {
        if (part.number)
            values.emplace_back(reader.number());
        else
            values.emplace_back(reader.text());
    }
    return values;
}

void writeChosenRow(const RankedAnalysis& analysis, const Record& record)
{
    RecordWriter writer;
    for (const KeyPart& part : analysis.key.parts) {
        const TextSpan field = keyField(part, record);
        part.number ? writer.number(leadingNumber(field)) : writer.text(field);
    }
    writer.endRecord().writeTo(chosenRowFile);
}

const Record& ListFile::next()
{
    before_ = std::move(record_);
    record_.clear();
    for (int field = 0; field <= analysis_.linesAnEntry; ++field)
        record_.push_back(reader_.text());
    ++position_;
    return record_;
}

const Record& ListFile::find(const KeyValues& key, int most)
{
    do
        next();
    while (!matches(key) && position_ < most);
    return record_;
}

bool ListFile::matches(const KeyValues& key) const
{
    if (!TextSpan(record_[1]).starts_with(analysis_.key.recordBegins))
        return false;
    for (std::size_t i = 0; i < key.size(); ++i) {
        const TextSpan field = keyField(analysis_.key.parts[i], record_);
        const auto* number = std::get_if<double>(&key[i]);
        if (number ? leadingNumber(field) != *number : field != std::get<Text>(key[i]))
            return false;
    }
    return true;
}

} // namespace plotvue
