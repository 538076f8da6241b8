// The key of a ranked entry: what tells it from the others on the screen, in a grid and in the small files.
#pragma once

#include "files/exchange.h"

#include <array>

namespace plotvue {

// What is kept of an entry; each screen names the slots. A rank that is not on the screen has an entry with
// zeros and empty texts.
struct Entry {
    std::array<double, 4> numbers{};
    std::array<Text, 4> texts{};
};

struct KeyPart {
    bool number;     // compared by value; otherwise every character must be the same
    int gridColumn;  // from 0
    int slot;        // of the entry's numbers or texts
    Position column; // on the entry's first line
    Position length;
};

struct Key {
    std::vector<KeyPart> parts;
    TextSpan lineStart{};   // the entry's first line on the screen must begin with it
    TextSpan recordStart{}; // the entry's first line in the list file must begin with it
};

using KeyValues = Record; // one value for each part of a key

// Throws Failure when the part is a number and the text one that is too large for a double.
RecordField keyValue(const KeyPart& part, TextSpan text);

KeyValues keyOf(const Key& key, const Entry& entry);
KeyValues keyOf(const Key& key, TextSpan firstLine);

bool hasKey(TextSpan firstLine, const Key& key, const KeyValues& values);

} // namespace plotvue
