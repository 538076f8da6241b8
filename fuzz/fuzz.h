// Shared code of the fuzzers. A fuzzer is a function that must return for any bytes.
#pragma once

#include "capture/failure.h"
#include "capture/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace plotvue::fuzz {

inline std::string_view bytesOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

inline Text textOf(const std::uint8_t* data, std::size_t size)
{
    return fromUtf8(bytesOf(data, size));
}

// Allows a reader to throw Failure or TooFewLines, and nothing else.
template <typename Read>
void mayFail(Read read)
{
    try {
        read();
    } catch (const Failure&) {
    } catch (const TooFewLines&) {
    }
}

// Aborts unless the condition holds, as it must for every input.
inline void always(bool truth)
{
    if (!truth)
        std::abort();
}

} // namespace plotvue::fuzz
