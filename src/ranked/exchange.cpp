#include "ranked/exchange.h"

#include "capture/failure.h"
#include "capture/number.h"
#include "capture/utf8.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plotvue {

namespace {

// A pipe in a file's place must not be waited for.
constexpr int atOnce = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

[[noreturn]] void failFor(const char* file, TextView what)
{
    const int reason = errno;
    throw Failure{u"The file " + fromUtf8(file) + u" in the working directory " + Text(what) + u" (" +
                  fromUtf8(std::strerror(reason)) + u")."};
}

} // namespace

void RecordWriter::separate()
{
    if (inRecord_)
        bytes_ += ',';
    inRecord_ = true;
}

RecordWriter& RecordWriter::text(TextView field)
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
    constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
    const int descriptor = open(file, O_WRONLY | O_CREAT | O_TRUNC | atOnce, ownerOnly);
    if (descriptor < 0)
        failFor(file, u"cannot be created");
    // A file that is already there keeps the rights it had. What a link leads to may be no file: a device
    // keeps them. So does what refuses, another person's file or a disk that knows no rights: it can be
    // written.
    struct stat found {};
    bool good = fstat(descriptor, &found) == 0;
    if (good && S_ISREG(found.st_mode))
        static_cast<void>(fchmod(descriptor, ownerOnly));
    for (std::size_t done = 0; good && done < bytes_.size();) {
        const ssize_t written = write(descriptor, bytes_.data() + done, bytes_.size() - done);
        good = written >= 0 || errno == EINTR;
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    const int reason = errno;
    const bool closed = close(descriptor) == 0;
    if (!good)
        errno = reason;
    if (!good || !closed)
        failFor(file, u"cannot be written");
}

RecordReader::RecordReader(const char* file) : file_(file)
{
    const int descriptor = open(file, O_RDONLY | atOnce);
    if (descriptor < 0)
        failFor(file, u"cannot be opened");
    // What a link leads to may be no file: a device need not come to an end.
    struct stat found {};
    if (fstat(descriptor, &found) == 0 && S_ISCHR(found.st_mode)) {
        close(descriptor);
        errno = ENODEV;
        failFor(file, u"cannot be read");
    }
    char buffer[1 << 16];
    ssize_t count = 0;
    do {
        count = read(descriptor, buffer, sizeof buffer);
        bytes_.append(buffer, count > 0 ? static_cast<std::size_t>(count) : 0);
    } while (count > 0 || (count < 0 && errno == EINTR));
    const int reason = errno;
    close(descriptor);
    errno = reason;
    if (count < 0)
        failFor(file, u"cannot be read");
}

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
