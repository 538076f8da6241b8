#include "ranked/rankedfigures.h"

#include "capture/failure.h"
#include "capture/lines.h"
#include "capture/number.h"

namespace plotvue {

namespace {

constexpr Position rankColumn = 6;
constexpr Position rankLength = 3;
// Kept: lines after the 500th (docs/kept.md).
constexpr int searchedLines = 1000; // for an entry's first line; lines after the screen's last are empty

std::vector<TextSpan> cutLines(TextSpan rest, int maxLines)
{
    std::vector<TextSpan> lines;
    // Kept: a last line without its end (docs/kept.md).
    for (int i = 0; i < maxLines && holds(rest, TextSpan(&carriageReturn, 1)); ++i) {
        lines.push_back(cutLine(rest));
        dropControls(rest);
    }
    return lines;
}

void take(const LineField& field, TextSpan line, RankedFigures& figures)
{
    const TextSpan text = field.length == toTheEnd ? mid(withoutLast(line), field.column)
                                                   : mid(line, field.column, field.length);
    const auto slot = static_cast<std::size_t>(field.slot);
    switch (field.to) {
    case LineField::To::EntryNumber:
        figures.currentEntry().numbers.at(slot) = leadingNumber(text);
        break;
    case LineField::To::EntryText:
        figures.currentEntry().texts.at(slot) = text;
        break;
    case LineField::To::ScreenNumber:
        figures.numbers.at(slot) = leadingNumber(text);
        break;
    case LineField::To::ScreenText:
        figures.texts.at(slot) = text;
        break;
    }
}

void apply(const LineRule& rule, TextSpan line, RankedFigures& figures)
{
    // Kept: markers anywhere, figures before the first entry (docs/kept.md).
    if (!holds(line, rule.marker) || (rule.afterRank && figures.currentRank == 0))
        return;
    if (rule.open)
        rule.open(figures, line);
    for (const LineField& field : rule.fields)
        take(field, line, figures);
    if (rule.then)
        rule.then(figures, line);
}

std::size_t indexOf(int rank)
{
    if (rank < 1 || rank > maxRanks)
        throw Failure{u"A rank on the screen is outside 1 to 100, which is all that can be listed."};
    return static_cast<std::size_t>(rank) - 1;
}

} // namespace

Entry& RankedFigures::entry(int rank)
{
    return entries_[indexOf(rank)];
}

const Entry& RankedFigures::entry(int rank) const
{
    return entries_[indexOf(rank)];
}

TextSpan RankedFigures::line(int number) const
{
    const auto at = static_cast<std::size_t>(number);
    return at > lines.size() ? TextSpan{} : lines[at - 1];
}

RankedFigures readRanked(const RankedScreen& screen, TextSpan capture)
{
    RankedFigures figures;
    figures.accepted = holds(capture, screen.title);
    if (!figures.accepted)
        return figures;
    if (screen.prepare)
        screen.prepare(figures);
    figures.lines = cutLines(capture, screen.maxLines);
    for (const TextSpan line : figures.lines)
        locateFailure(line, [&] {
            for (const LineRule& rule : screen.rules)
                apply(rule, line, figures);
        });
    return figures;
}

void openRank(RankedFigures& figures, TextSpan line)
{
    figures.currentRank = toInt16(leadingNumber(mid(line, rankColumn, rankLength)), u"A rank on the screen");
}

std::vector<int> ranksIn(const RankedGrid& grid, const RankedFigures& figures)
{
    std::vector<int> ranks;
    int rank = 0;
    for (int row = 1; row <= figures.counts.at(static_cast<std::size_t>(grid.count)); ++row) {
        const Entry* entry = nullptr;
        do
            entry = &figures.entry(++rank); // Kept: a missing rank (docs/kept.md).
        while (grid.lists && !grid.lists(*entry));
        ranks.push_back(rank);
    }
    return ranks;
}

std::vector<int> firstLines(const std::vector<int>& ranks, const Key& key, const RankedFigures& figures)
{
    std::vector<int> lines;
    int found = 0;
    for (const int rank : ranks) {
        const KeyValues values = keyOf(key, figures.entry(rank));
        for (int number = 1; number <= searchedLines; ++number)
            if (figures.line(number).starts_with(key.lineStart) &&
                hasKey(figures.line(number), key, values)) {
                found = number;
                break;
            }
        // Kept: a row that is not found (docs/kept.md).
        if (found == 0)
            throw Failure{u"The first row of the list is not found again on the copied screen."};
        lines.push_back(found);
    }
    return lines;
}

} // namespace plotvue
