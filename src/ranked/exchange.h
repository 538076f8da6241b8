// The small text files in the working directory, readable by their owner only. A record is one line: fields
// apart by commas, texts in double quotation marks as they stand (line ends inside them kept, nothing
// doubled), numbers bare; it ends with CR LF. Files are UTF-8 and rewritten whole.
#pragma once

#include "capture/text.h"

namespace plotvue {

inline constexpr const char* scratchFile = "pvuscrn.txt";    // the capture of a ranked analysis: one text
inline constexpr const char* listFile = "plotvue.txt";       // a record per entry of the list
inline constexpr const char* chosenRowFile = "plotvue1.txt"; // the key of the entry shown

// Collects records and writes them in one go.
class RecordWriter {
public:
    RecordWriter& text(TextSpan field);
    RecordWriter& number(double field);
    RecordWriter& endRecord();

    // Creates or truncates the file. Throws Failure when it cannot be written.
    void writeTo(const char* file) const;

private:
    void separate();

    std::string bytes_;
    bool inRecord_ = false;
};

// Reads the fields of a file's records one after the other, wherever the records end.
class RecordReader {
public:
    // Throws Failure when the file cannot be opened or read.
    explicit RecordReader(const char* file);

    // The next field. A text in quotation marks goes to the next one, any other to the next comma or line
    // end. Throws Failure behind the last field.
    Text text();
    double number();

private:
    std::string_view field();

    std::string file_, bytes_;
    std::size_t at_ = 0;
};

} // namespace plotvue
