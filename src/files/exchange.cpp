#include "files/exchange.h"

#include "capture/failure.h"
#include "capture/number.h"
#include "capture/utf8.h"
#include "files/smallfile.h"

#include <algorithm>

namespace plotvue {

namespace {

std::string written(const RecordField& field)
{
    if (const auto* number = std::get_if<double>(&field))
        return toUtf8(plainNumber(*number));
    return '"' + toUtf8(std::get<Text>(field)) + '"';
}

} // namespace

void writeRecords(const char* file, const std::vector<Record>& records)
{
    std::string bytes;
    for (const Record& fields : records) {
        for (const RecordField& field : fields)
            bytes += (&field == fields.data() ? "" : ",") + written(field);
        bytes += "\r\n";
    }
    writeSmallFile(file, bytes);
}

RecordReader::RecordReader(const char* file) : file_(file), bytes_(readSmallFile(file)) {}

Text RecordReader::next()
{
    const auto nextOf = [this](std::string_view ends, std::size_t from) {
        return std::min(bytes_.find_first_of(ends, from), bytes_.size());
    };
    at_ = std::min(bytes_.find_first_not_of(" \t\r\n", at_), bytes_.size());
    if (at_ == bytes_.size())
        throw Failure{u"The file " + fromUtf8(file_) + u" in the working directory ends too early."};
    const bool isQuoted = bytes_[at_] == '"';
    const std::size_t start = isQuoted ? at_ + 1 : at_;
    const std::size_t end = nextOf(isQuoted ? "\"" : ",\r\n", start);
    at_ = nextOf(",\r\n", end);
    // Only a comma must be skipped now: the next call skips a line end.
    if (bytes_[at_] == ',')
        ++at_;
    return fromUtf8(std::string_view(bytes_).substr(start, end - start));
}

} // namespace plotvue
