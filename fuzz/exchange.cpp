// A file of records read in both ways, and the text read back as it was written.
#include "ranked/exchange.h"

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
            reader.text();
    });
    fuzz::mayFail([] {
        for (RecordReader reader(file.c_str());;)
            reader.number();
    });

    Text text = fuzz::textOf(data, size);
    std::erase(text, u'"');
    RecordWriter().text(text).text({}).number(-1.5).endRecord().text(text).endRecord().writeTo(file.c_str());
    RecordReader reader(file.c_str());
    fuzz::always(reader.text() == text && reader.text().empty() && reader.number() == -1.5);
    fuzz::always(reader.text() == text);
    return 0;
}
