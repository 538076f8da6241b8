#pragma once

#include <string>

namespace plotvue::test {

// True of a plain file, no link, that nobody but its owner may read or write.
bool ownerOnly(const std::string& file);

} // namespace plotvue::test
