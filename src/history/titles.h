// Titles put together from pieces of the screen.
#pragma once

#include "history/screen.h"

namespace plotvue {

// The pieces one after the other. Throws Failure for a piece that cannot be cut, and for a position that must
// fit into 16 bits and does not.
Text compose(const std::vector<Piece>& pieces, const ScreenLines& lines, const DataType& type,
             ShortPositions positions);

} // namespace plotvue
