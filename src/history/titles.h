// Puts titles together from pieces of the screen.
#pragma once

#include "history/monthlyscreen.h"

namespace plotvue {

// Returns the pieces joined together. Throws Failure when a piece cannot be cut, or when a position must fit
// into 16 bits and does not.
Text compose(const std::vector<Piece>& pieces, const ScreenLines& lines, const DataType& type,
             ShortPositions positions);

} // namespace plotvue
