#include "platform/gridtext.h"

#include "chart/drawable.h"

#include <algorithm>

namespace plotvue {

namespace {

void addLine(Text& table, const std::vector<Text>& cells)
{
    TextSpan separator;
    for (const Text& cell : cells) {
        table.append(separator).append(cellText(cell));
        separator = u"\t";
    }
    table += u"\r\n";
}

} // namespace

std::vector<Text> headingsOf(const Grid& grid)
{
    std::vector<Text> headings;
    TextSpan rest = grid.format;
    for (int column = 0; column < grid.columns; ++column) {
        TextSpan heading = rest.substr(0, rest.find(u'|'));
        rest.remove_prefix(std::min(heading.size() + 1, rest.size()));
        if (heading.starts_with(u'<') || heading.starts_with(u'>'))
            heading.remove_prefix(1);
        headings.emplace_back(heading);
    }
    return headings;
}

Text cellText(TextSpan text)
{
    Text line;
    char16_t before = 0;
    for (const char16_t c : text) {
        if (c == u'\r' || (c == u'\n' && before != u'\r'))
            line += u' ';
        else
            line += c;
        before = c;
    }
    return drawable(line);
}

Text rowsTable(const Grid& grid)
{
    Text table;
    if (grid.cells.empty())
        return table;
    addLine(table, headingsOf(grid));
    for (const std::vector<Text>& row : grid.cells)
        addLine(table, row);
    return table;
}

} // namespace plotvue
