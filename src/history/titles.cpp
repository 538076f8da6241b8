#include "history/titles.h"

#include "capture/failure.h"

#include <algorithm>

namespace plotvue {

TextSpan cut(const Piece& piece, const ScreenLines& lines, ShortPositions positions)
{
    if (piece.line == 0)
        return piece.text;
    const TextSpan searched = lines[piece.behindLine ? piece.behindLine : piece.line];
    Position behind = 0;
    if (!piece.behind.empty())
        behind = find(piece.behindBeforeEnd ? withoutLast(searched) : searched, piece.behind);
    if (positions == ShortPositions::All)
        toInt16(static_cast<double>(behind), u"A line of the copied text");

    TextSpan line = lines[piece.line];
    const Position start = behind + piece.from;
    if (piece.lineLimit != toTheEnd) {
        const Position end = std::min(static_cast<Position>(line.size()), piece.lineLimit);
        return mid(line, start, end - start);
    }
    if (!piece.lineEnd)
        line = withoutLast(line);
    return mid(line, start, piece.length);
}

Text compose(const std::vector<Piece>& pieces, const ScreenLines& lines, ShortPositions positions)
{
    Text title;
    for (const Piece& piece : pieces)
        readLine(piece.line ? lines[piece.line] : TextSpan(), [&] { title += cut(piece, lines, positions); });
    return title;
}

} // namespace plotvue
