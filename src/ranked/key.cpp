#include "ranked/key.h"

#include "capture/number.h"

#include <algorithm>

namespace plotvue {

RecordField keyValue(const KeyPart& part, TextSpan text)
{
    return part.number ? RecordField(leadingNumber(text)) : RecordField(Text(text));
}

KeyValues keyOf(const Key& key, const Entry& entry)
{
    KeyValues values;
    for (const KeyPart& part : key.parts) {
        const auto slot = static_cast<std::size_t>(part.slot);
        values.push_back(part.number ? RecordField(entry.numbers.at(slot))
                                     : RecordField(entry.texts.at(slot)));
    }
    return values;
}

KeyValues keyOf(const Key& key, TextSpan firstLine)
{
    KeyValues values;
    for (const KeyPart& part : key.parts)
        values.push_back(keyValue(part, mid(firstLine, part.column, part.length)));
    return values;
}

bool hasKey(TextSpan firstLine, const Key& key, const KeyValues& values)
{
    return std::ranges::equal(key.parts, values, [&](const KeyPart& part, const RecordField& value) {
        return keyValue(part, mid(firstLine, part.column, part.length)) == value;
    });
}

} // namespace plotvue
