// What the fuzzers have in common: one is a function that reads any bytes and must come back.
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

// A reader may end with a failure or run out of text, and in no other way.
template <typename Read>
void mayFail(Read read)
{
    try {
        read();
    } catch (const Failure&) {
    } catch (const EndlessRead&) {
    }
}

// What holds whatever is read.
inline void always(bool truth)
{
    if (!truth)
        std::abort();
}

} // namespace plotvue::fuzz
