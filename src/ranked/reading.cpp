#include "ranked/reading.h"

#include "capture/failure.h"
#include "capture/lines.h"
#include "capture/number.h"

namespace plotvue {

namespace {

constexpr Position rankColumn = 6;
constexpr Position rankLength = 3;
constexpr Position keyLength = 5;

std::vector<TextSpan> cutLines(TextSpan rest, int most)
{
    std::vector<TextSpan> lines;
    for (int i = 0; i < most && holds(rest, TextSpan(&carriageReturn, 1)); ++i) {
        lines.push_back(cutLine(rest));
        dropControls(rest);
    }
    return lines;
}

void take(const Taken& taken, TextSpan line, RankedReading& reading)
{
    const TextSpan field = taken.length == toTheEnd ? mid(withoutLast(line), taken.column)
                                                    : mid(line, taken.column, taken.length);
    const auto slot = static_cast<std::size_t>(taken.slot);
    switch (taken.to) {
    case Taken::To::EntryNumber:
        reading.entry(reading.current).numbers[slot] = leadingNumber(field);
        break;
    case Taken::To::EntryText:
        reading.entry(reading.current).texts[slot] = field;
        break;
    case Taken::To::PageNumber:
        reading.totals[slot] = leadingNumber(field);
        break;
    case Taken::To::PageText:
        reading.page[slot] = field;
        break;
    }
}

void scan(const Marker& marker, TextSpan line, RankedReading& reading)
{
    const TextSpan key = marker.keyOfPage ? mid(reading.page[0], 1, keyLength) : marker.text;
    if (!holds(line, key))
        return;
    if (marker.opens == Marker::Opens::Rank)
        reading.current = toInt16(leadingNumber(mid(line, rankColumn, rankLength)), u"A rank on the screen");
    else if (marker.opens == Marker::Opens::NextEntry)
        ++reading.current;
    for (const Taken& taken : marker.takes)
        take(taken, line, reading);
    if (marker.then)
        marker.then(reading, line);
}

std::size_t slotOf(int rank)
{
    if (rank < 1 || rank > mostRanks)
        throw Failure{u"A rank on the screen is outside 1 to 100, which is all that can be listed."};
    return static_cast<std::size_t>(rank) - 1;
}

bool belongs(const Entry& entry, RankedGrid::Holds holds)
{
    return holds == RankedGrid::Holds::All ||
           (holds == RankedGrid::Holds::NotNegative ? entry.numbers[0] >= 0 : entry.numbers[0] <= 0);
}

bool stands(const Entry& entry, const Key& key, TextSpan line)
{
    if (!line.starts_with(key.lineBegins))
        return false;
    for (const KeyPart& part : key.parts) {
        const TextSpan field = mid(line, part.column, part.length);
        const auto slot = static_cast<std::size_t>(part.slot);
        if (part.number ? leadingNumber(field) != entry.numbers[slot] : field != entry.texts[slot])
            return false;
    }
    return true;
}

} // namespace

Entry& RankedReading::entry(int rank)
{
    return entries_[slotOf(rank)];
}

const Entry& RankedReading::entry(int rank) const
{
    return entries_[slotOf(rank)];
}

TextSpan RankedReading::line(int number) const
{
    return static_cast<std::size_t>(number) > lines.size() ? TextSpan{}
                                                           : lines[static_cast<std::size_t>(number) - 1];
}

RankedReading readRanked(const RankedAnalysis& analysis, TextSpan capture)
{
    RankedReading reading;
    reading.accepted = holds(capture, analysis.title);
    if (!reading.accepted)
        return reading;
    reading.page[0] = analysis.pageAtStart;
    reading.lines = cutLines(capture, analysis.mostLines);
    for (const TextSpan line : reading.lines)
        readLine(line, [&] {
            for (const Marker& marker : analysis.markers)
                scan(marker, line, reading);
        });
    return reading;
}

std::vector<int> ranksIn(const RankedGrid& grid, const RankedReading& reading)
{
    std::vector<int> ranks;
    int rank = 0;
    for (int row = 1; row <= reading.counts[static_cast<std::size_t>(grid.count)]; ++row) {
        do
            ++rank;
        while (!belongs(reading.entry(rank), grid.holds));
        ranks.push_back(rank);
    }
    return ranks;
}

std::vector<int> linesOf(const std::vector<int>& ranks, const Key& key, const RankedReading& reading)
{
    std::vector<int> lines;
    int found = 0;
    for (const int rank : ranks) {
        for (int number = 1; number <= RankedReading::searchedLines; ++number)
            if (stands(reading.entry(rank), key, reading.line(number))) {
                found = number;
                break;
            }
        if (found == 0)
            throw Failure{u"The first row of the list is not found again on the copied screen."};
        lines.push_back(found);
    }
    return lines;
}

} // namespace plotvue
