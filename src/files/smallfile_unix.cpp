#include "capture/utf8.h"
#include "files/smallfile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plotvue {

namespace {

// Opening a pipe in the place of the file must not wait for its other end.
constexpr int atOnce = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

[[noreturn]] void failFor(const char* file, TextSpan what)
{
    failForFile(file, what, fromUtf8(std::strerror(errno)));
}

} // namespace

void writeSmallFile(const char* file, const std::string& bytes)
{
    constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
    const int descriptor = open(file, O_WRONLY | O_CREAT | O_TRUNC | atOnce, ownerOnly);
    if (descriptor < 0)
        failFor(file, u"cannot be created");
    // A file that existed before still has its old rights. Only those of a plain file are changed, because
    // the name may be a link to a device. A failure is ignored: PlotVue can also write another person's file,
    // or a file on a disk without rights.
    struct stat found {};
    bool good = fstat(descriptor, &found) == 0;
    if (good && S_ISREG(found.st_mode))
        static_cast<void>(fchmod(descriptor, ownerOnly));
    for (std::size_t done = 0; good && done < bytes.size();) {
        const ssize_t written = write(descriptor, bytes.data() + done, bytes.size() - done);
        if (written == 0)
            errno = EIO; // trying again would never end
        good = written > 0 || (written < 0 && errno == EINTR);
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    const int reason = errno;
    const bool closed = close(descriptor) == 0;
    if (!good)
        errno = reason;
    if (!good || !closed)
        failFor(file, u"cannot be written");
}

std::string readSmallFile(const char* file)
{
    const int descriptor = open(file, O_RDONLY | atOnce);
    if (descriptor < 0)
        failFor(file, u"cannot be opened");
    // The name may be a link to a device, which may never end.
    struct stat found {};
    if (fstat(descriptor, &found) == 0 && S_ISCHR(found.st_mode)) {
        close(descriptor);
        errno = ENODEV;
        failFor(file, u"cannot be read");
    }
    std::string bytes;
    char buffer[1 << 16];
    ssize_t count = 0;
    do {
        count = read(descriptor, buffer, sizeof buffer);
        bytes.append(buffer, count > 0 ? static_cast<std::size_t>(count) : 0);
    } while (count > 0 || (count < 0 && errno == EINTR));
    const int reason = errno;
    close(descriptor);
    errno = reason;
    if (count < 0)
        failFor(file, u"cannot be read");
    return bytes;
}

} // namespace plotvue
