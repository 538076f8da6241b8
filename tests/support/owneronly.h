#pragma once

#include <string>

namespace plotvue::test {

// Whether this is a plain file, not a link, that only its owner may read or write.
bool ownerOnly(const std::string& file);

} // namespace plotvue::test
