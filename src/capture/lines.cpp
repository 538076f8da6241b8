#include "capture/lines.h"

#include "capture/failure.h"

namespace plotvue {

namespace {

// Kept: a line without an end (docs/kept.md).
constexpr std::size_t longestUnendedLine = 81;
constexpr TextSpan dashes = u"-----";
constexpr Position lastDashPosition = 29;

} // namespace

TextSpan cutLine(TextSpan& rest)
{
    const std::size_t at = rest.find(carriageReturn);
    const TextSpan line = rest.substr(0, at == TextSpan::npos ? longestUnendedLine : at + 1);
    rest.remove_prefix(line.size());
    return line;
}

void dropControls(TextSpan& rest)
{
    std::size_t controls = 0;
    while (controls < rest.size() && rest[controls] <= carriageReturn)
        ++controls;
    rest.remove_prefix(controls);
}

ScreenLines::ScreenLines(TextSpan capture)
{
    TextSpan rest = capture;
    while (count_ < read && !ranOut_) {
        lines_[static_cast<std::size_t>(++count_)] = cutLine(rest);
        // Kept: dashes in the rest of the text (docs/kept.md).
        const TextSpan within =
            rest.substr(0, static_cast<std::size_t>(lastDashPosition) - 1 + dashes.size());
        if (holds(within, dashes))
            dashLine_ = count_ + 1;
        dropControls(rest); // Kept: blank lines (docs/kept.md).
        ranOut_ = rest.empty();
    }
}

TextSpan ScreenLines::operator[](Position number) const
{
    // Kept: rows below line 19 (docs/kept.md).
    if (number < 1 || number > capacity)
        throw Failure{
            u"The column headings are so low on the screen that the months under them are missing."};
    return lines_[static_cast<std::size_t>(number)];
}

void ScreenLines::requireAll() const
{
    // Kept: a screen that is cut off (docs/kept.md).
    if (!ranOut_)
        return;
    int lines = 0;
    bool ended = true; // the pieces after the last line end are one line
    for (int i = 1; i <= count_ && ended; ++i) {
        const TextSpan line = lines_[static_cast<std::size_t>(i)];
        ended = line.ends_with(carriageReturn);
        lines += line.size() > (ended ? 1 : 0) ? 1 : 0;
    }
    throw TooFewLines{lines};
}

} // namespace plotvue
