#include "group/groupreader.h"

#include "capture/failure.h"
#include "capture/lines.h"
#include "capture/number.h"

#include <algorithm>

namespace plotvue {

namespace {

constexpr int maxSalesmen = 23; // Kept: four groups and 23 salesmen (docs/kept.md).

TextSpan nextLine(TextSpan& rest)
{
    const TextSpan line = cutLine(rest);
    dropControls(rest);
    return line;
}

int countAfter(TextSpan line, TextSpan mark, Position length)
{
    // Kept: a missing mark (docs/kept.md).
    const Position start = find(line, mark) + static_cast<Position>(mark.size());
    return toInt16(leadingNumber(mid(line, start, length)), u"A count on the screen");
}

// The names are between semicolons. The last name may end with the line in place of a semicolon.
std::vector<TextSpan> namesIn(TextSpan line, int count)
{
    TextSpan rest = mid(line, find(line, u";") + 1);
    if (rest.ends_with(carriageReturn))
        rest.remove_suffix(1);
    std::vector<TextSpan> names;
    for (int i = 0; i < count; ++i) {
        const Position end = find(rest, u";");
        names.push_back(end ? mid(rest, 1, end - 1) : rest);
        rest = end ? mid(rest, end + 1) : TextSpan{};
    }
    return names;
}

Salesman readSalesman(TextSpan line, std::size_t values, const std::vector<bool>& wanted)
{
    Salesman salesman{Text(mid(line, 1, 2)) + u'_' + Text(mid(line, 3, 2)), std::vector<double>(values)};
    TextSpan rest = mid(line, 6);
    for (std::size_t i = 0; i < values; ++i) {
        const Position end = find(rest, u";");
        // Kept: a figure without its semicolon (docs/kept.md).
        if (end && wanted[i])
            salesman.values[i] = leadingNumber(mid(rest, 1, end - 1));
        rest = mid(rest, end + 1);
    }
    return salesman;
}

} // namespace

GroupFigures readGroups(TextSpan capture, const std::vector<bool>& wanted)
{
    TextSpan rest = capture;
    nextLine(rest); // the heading
    const TextSpan groupLine = nextLine(rest);
    GroupFigures figures;
    figures.subject = mid(nextLine(rest), 7, 9);
    const int salesmen = locateFailure(groupLine, [&] {
        figures.groups = countAfter(groupLine, u"GROUPS:", 2);
        const int count = countAfter(groupLine, u"SCOUNT:", 9);
        if (count < 0 || count > maxSalesmen)
            throw Failure{
                u"The count of salesmen on the screen is outside 0 to 23, which is all that can be charted."};
        return count;
    });
    figures.names = namesIn(groupLine, figures.groups);
    const auto values = static_cast<std::size_t>(std::clamp(figures.groups, 0, maxGroups) * valuesPerGroup);
    for (int i = 0; i < salesmen; ++i) {
        const TextSpan line = nextLine(rest);
        figures.salesmen.push_back(locateFailure(line, [&] { return readSalesman(line, values, wanted); }));
    }
    return figures;
}

} // namespace plotvue
