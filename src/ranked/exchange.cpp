#include "ranked/exchange.h"

#include "capture/failure.h"
#include "capture/number.h"
#include "capture/utf8.h"
#include "ranked/smallfile.h"

#include <algorithm>

namespace plotvue {

void RecordWriter::separate()
{
    if (inRecord_)
        bytes_ += ',';
    inRecord_ = true;
}

RecordWriter& RecordWriter::text(TextSpan field)
{
    separate();
    bytes_ += '"' + toUtf8(field) + '"';
    return *this;
}

RecordWriter& RecordWriter::number(double field)
{
    separate();
    bytes_ += toUtf8(plainNumber(field));
    return *this;
}

RecordWriter& RecordWriter::endRecord()
{
    bytes_ += "\r\n";
    inRecord_ = false;
    return *this;
}

void RecordWriter::writeTo(const char* file) const
{
    writeSmallFile(file, bytes_);
}

RecordReader::RecordReader(const char* file) : file_(file), bytes_(readSmallFile(file)) {}

std::string_view RecordReader::field()
{
    const auto from = [this](std::size_t start, std::string_view ends) {
        return std::min(bytes_.find_first_of(ends, start), bytes_.size());
    };
    at_ = std::min(bytes_.find_first_not_of(" \t\r\n", at_), bytes_.size());
    if (at_ == bytes_.size())
        throw Failure{u"The file " + fromUtf8(file_) + u" in the working directory ends too early."};
    const bool isQuoted = bytes_[at_] == '"';
    const std::size_t start = isQuoted ? at_ + 1 : at_;
    const std::size_t end = isQuoted ? from(start, "\"") : from(start, ",\r\n");
    at_ = from(end, ",\r\n");
    // A comma leads to the next field of the record, a line end to the next record.
    if (bytes_[at_] == ',')
        ++at_;
    return std::string_view(bytes_).substr(start, end - start);
}

Text RecordReader::text()
{
    return fromUtf8(field());
}

double RecordReader::number()
{
    return leadingNumber(fromUtf8(field()));
}

} // namespace plotvue
