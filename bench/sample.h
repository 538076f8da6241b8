// The captures that are timed.
#pragma once

#include "capture/text.h"
#include "capture/utf8.h"

#include <fstream>
#include <iterator>
#include <string>

namespace plotvue {

inline Text productCapture()
{
    std::ifstream file(PLOTVUE_SAMPLES "/product.txt", std::ios::binary);
    return fromUtf8(std::string{std::istreambuf_iterator<char>(file), {}});
}

} // namespace plotvue
