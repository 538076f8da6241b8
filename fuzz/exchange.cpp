// Reads a small file of any bytes. Then writes the bytes as a text, without their quotation marks, and checks
// that the text is read back unchanged.
#include "files/exchange.h"

#include "fuzz.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace plotvue;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string file = "/proc/self/fd/" + std::to_string(memfd_create("records", MFD_CLOEXEC));
    const int descriptor = open(file.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
    fuzz::always(write(descriptor, data, size) == static_cast<ssize_t>(size) && close(descriptor) == 0);
    fuzz::mayFail([] {
        for (RecordReader reader(file.c_str());;)
            reader.next();
    });

    Text text = fuzz::textOf(data, size);
    std::erase(text, u'"');
    writeRecords(file.c_str(), {{text, u"", -1.5}, {text}});
    RecordReader reader(file.c_str());
    fuzz::always(reader.next() == text && reader.next().empty() && reader.next() == u"-1.5");
    fuzz::always(reader.next() == text);
    return 0;
}
