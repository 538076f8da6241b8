#include "ranked/rankedfigures.h"

#include "capture/failure.h"
#include "capture/lines.h"
#include "capture/number.h"

namespace plotvue {

namespace {

constexpr Position rankColumn = 6;
constexpr Position rankLength = 3;
// Kept: lines after the 500th (docs/kept.md).
constexpr int searchedLines = 1000; // for an entry's first line; empty ones follow the screen's last

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

void take(const LineField& field, TextSpan line, RankedFigures& screen)
{
    const TextSpan text = field.length == toTheEnd ? mid(withoutLast(line), field.column)
                                                   : mid(line, field.column, field.length);
    const auto slot = static_cast<std::size_t>(field.slot);
    switch (field.to) {
    case LineField::To::EntryNumber:
        screen.currentEntry().numbers.at(slot) = leadingNumber(text);
        break;
    case LineField::To::EntryText:
        screen.currentEntry().texts.at(slot) = text;
        break;
    case LineField::To::ScreenNumber:
        screen.numbers.at(slot) = leadingNumber(text);
        break;
    case LineField::To::ScreenText:
        screen.texts.at(slot) = text;
        break;
    }
}

void apply(const LineRule& rule, TextSpan line, RankedFigures& screen)
{
    // Kept: markers anywhere, figures before the first entry (docs/kept.md).
    if (!holds(line, rule.marker) || (rule.afterRank && screen.currentRank == 0))
        return;
    if (rule.open)
        rule.open(screen, line);
    for (const LineField& field : rule.fields)
        take(field, line, screen);
    if (rule.then)
        rule.then(screen, line);
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

RankedFigures readRanked(const RankedScreen& analysis, TextSpan capture)
{
    RankedFigures screen;
    screen.accepted = holds(capture, analysis.title);
    if (!screen.accepted)
        return screen;
    if (analysis.prepare)
        analysis.prepare(screen);
    screen.lines = cutLines(capture, analysis.maxLines);
    for (const TextSpan line : screen.lines)
        locateFailure(line, [&] {
            for (const LineRule& rule : analysis.rules)
                apply(rule, line, screen);
        });
    return screen;
}

void openRank(RankedFigures& screen, TextSpan line)
{
    screen.currentRank = toInt16(leadingNumber(mid(line, rankColumn, rankLength)), u"A rank on the screen");
}

std::vector<int> ranksIn(const RankedGrid& grid, const RankedFigures& screen)
{
    std::vector<int> ranks;
    int rank = 0;
    for (int row = 1; row <= screen.counts.at(static_cast<std::size_t>(grid.count)); ++row) {
        const Entry* entry = nullptr;
        do
            entry = &screen.entry(++rank); // Kept: a missing rank (docs/kept.md).
        while (grid.lists && !grid.lists(*entry));
        ranks.push_back(rank);
    }
    return ranks;
}

std::vector<int> firstLines(const std::vector<int>& ranks, const Key& key, const RankedFigures& screen)
{
    std::vector<int> lines;
    int found = 0;
    for (const int rank : ranks) {
        const KeyValues values = keyOf(key, screen.entry(rank));
        for (int number = 1; number <= searchedLines; ++number)
            if (screen.line(number).starts_with(key.lineStart) && hasKey(screen.line(number), key, values)) {
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
