// Titles put together from pieces of the screen.
#pragma once

#include "capture/lines.h"
#include "history/screen.h"

namespace plotvue {

// Throws Failure for a piece that cannot be cut, or a position that must fit 16 bits and does not.
Text compose(const std::vector<Piece>& pieces, const ScreenLines& lines, ShortPositions positions);

// The characters of one piece.
TextSpan cut(const Piece& piece, const ScreenLines& lines, ShortPositions positions);

} // namespace plotvue
