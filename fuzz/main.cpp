// A fuzzer as a plain program: reads each given file and each file in each given folder.
#include "fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

void play(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file)
        throw std::filesystem::filesystem_error("cannot read", path, {});
    // Flushed, so that the last name printed is the file that crashes.
    std::cout << path.string() << std::endl;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (!std::filesystem::is_directory(argv[i])) {
            play(argv[i]);
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
            play(entry.path());
    }
}
