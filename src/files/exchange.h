// The small text files in the working directory. Each is UTF-8, is rewritten whole, and only its owner may
// read it. A record is one line that ends with CR LF. Its fields are separated by commas: a text is put
// between double quotation marks without any change, so it may hold line ends and more such marks; a number
// is written without them.
#pragma once

#include "capture/text.h"

#include <variant>
#include <vector>

namespace plotvue {

inline constexpr const char* scratchFile = "pvuscrn.txt";    // one text: the capture of a ranked screen
inline constexpr const char* listFile = "plotvue.txt";       // a record for each row of a list
inline constexpr const char* chosenRowFile = "plotvue1.txt"; // one record: the key of a row of the list

using RecordField = std::variant<double, Text>;
using Record = std::vector<RecordField>;

// Creates or truncates the file. Throws Failure when it cannot be written.
void writeRecords(const char* file, const std::vector<Record>& records);

// Reads the fields of a file one after the other. The end of a record only separates two fields.
class RecordReader {
public:
    // Throws Failure when the file cannot be opened or read.
    explicit RecordReader(const char* file);

    // The next field. One that begins with a quotation mark ends at the next such mark, any other one at the
    // next comma or line end. Throws Failure after the last field.
    Text next();

private:
    std::string file_, bytes_;
    std::size_t at_ = 0;
};

} // namespace plotvue
