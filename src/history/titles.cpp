#include "history/titles.h"

#include "capture/failure.h"

namespace plotvue {

namespace {

TextSpan cut(const Piece& piece, const ScreenLines& lines, const DataType& type, ShortPositions positions)
{
    if (piece.cut)
        return piece.cut(lines, type);
    if (piece.line == 0)
        return piece.text;
    const TextSpan line = lines[piece.line];
    // Kept: a missing mark (docs/kept.md).
    const Position after = piece.after.empty() ? 0 : find(line, piece.after);
    if (positions == ShortPositions::OfWordsAndTitles)
        toInt16(static_cast<double>(after), u"A line of the copied text");
    return mid(piece.lineEnd ? line : withoutLast(line), after + piece.from, piece.length);
}

} // namespace

Text compose(const std::vector<Piece>& pieces, const ScreenLines& lines, const DataType& type,
             ShortPositions positions)
{
    Text title;
    for (const Piece& piece : pieces)
        locateFailure(piece.line ? lines[piece.line] : TextSpan(),
                      [&] { title += cut(piece, lines, type, positions); });
    return title;
}

} // namespace plotvue
