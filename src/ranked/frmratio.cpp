// Financial ratios: the value and the benchmark of each; 13 months of one, its formula and a note on it.
//
//     FINANCIAL RATIO ANALYSIS, OCTOBER 1999
//     COMP:THREE RIVERS FUEL & LUBRICANTS
//     Mlabel OCT99SEP99AUG99JUL99JUN99...
//     1:CUR           1.86          1.84          1.81          1.80  ...
//     2:CUR           1.68          1.66          1.68          1.62  ...
//     3:         2.00                        1.86          2.00
//     4: CASS 4,182,300  CLIB 2,298,000
//     5: CASS / CLIB
//     6: STD
//
// Every value of the first two lines has 13 columns and a blank, the first from column 9 on. The third line
// may name the ratio after "3A:". The sixth is a note on it; STD means the note that PlotVue has.

#include "capture/number.h"
#include "ranked/monthcolumns.h"
#include "ranked/rankedfigures.h"
#include "ranked/rankedscreens.h"
#include "ranked/ratiotexts.h"

#include <algorithm>

namespace plotvue {

namespace {

enum EntryNumber { currentValue }; // Kept: figures that are not shown (docs/kept.md).
enum EntryText { code, name, valueText, benchmarkText };
enum ScreenText { monthLabels, title, company };

constexpr Position valueLength = 13;
constexpr int monthsOnFirstLine = 7;

TextSpan codeOf(TextSpan line)
{
    return mid(line, 3, 4);
}

// Ratios have no ranks: they are numbered as they come.
void openNext(RankedFigures& figures, TextSpan)
{
    ++figures.currentRank;
}

void countEntry(RankedFigures& figures, TextSpan)
{
    figures.counts[0] = figures.currentRank;
}

void nameByCode(RankedFigures& figures, TextSpan line)
{
    figures.currentEntry().texts[name] = ratio(codeOf(line)).name;
}

// The name after "3A:", up to a bar or the end of the line; absent where the line has no "3A:".
std::optional<TextSpan> ownName(TextSpan line)
{
    constexpr TextSpan mark = u"3A:";
    const Position at = find(line, mark);
    if (at == 0)
        return std::nullopt;
    const TextSpan rest = mid(line, at + static_cast<Position>(mark.size()));
    const Position bar = find(rest, u"|");
    return bar ? mid(rest, 1, bar - 1) : withoutLast(rest);
}

void nameByLine(RankedFigures& figures, TextSpan line)
{
    if (const auto own = ownName(line))
        figures.currentEntry().texts[name] = *own;
}

// The text after "4: ", "5: " or "6: ". Throws Failure where the line has fewer than 3 characters.
TextSpan textOf(const EntryLines& record, std::size_t line)
{
    return mid(record[line], 4, static_cast<Position>(record[line].size()) - 3);
}

Text formulaMessage(const EntryLines& record)
{
    return u"Formula in QXM: " + Text(textOf(record, 5)) + u"\r\r" + u"Current month data: " +
           Text(textOf(record, 4));
}

// Kept: only STD is STD (docs/kept.md).
Text noteMessage(const EntryLines& record)
{
    const TextSpan note = textOf(record, 6);
    const TextSpan bare = note.ends_with(carriageReturn) ? withoutLast(note) : note;
    return Text(bare == u"STD" ? ratioOrComponent(codeOf(record[2])).note : note);
}

double monthValue(const EntryLines& record, int month)
{
    const bool first = month <= monthsOnFirstLine;
    const int place = first ? month : month - monthsOnFirstLine;
    return leadingNumber(mid(record[first ? 1 : 2], 14 * place - 5, valueLength));
}

void draw(Controls& controls, const EntryLines& record, int)
{
    std::vector<double> values(monthColumns);
    std::vector<Text> labels(monthColumns);
    double largest = 0;
    for (int month = 1; month <= monthColumns; ++month) {
        const auto point = static_cast<std::size_t>(monthColumns - month);
        labels[point] = monthLabel(record[0], month);
        values[point] = monthValue(record, month);
        largest = std::max(largest, values[point]);
    }
    largest = std::max(largest, leadingNumber(mid(record[3], 3, valueLength)));
    // Kept: a ratio that is cut off (docs/kept.md).
    for (const std::size_t line : {4u, 5u, 6u})
        textOf(record, line);

    controls.chart("ChartFX1").change([&](Chart& ChartFX1) {
        ChartFX1.SetTitle(2, ownName(record[3]).value_or(ratioOrComponent(codeOf(record[2])).name));
        ChartFX1.SetAxisMax(largest);
        ChartArrayData data;
        data.AddArray(values);
        data.AddArray(labels);
        ChartFX1.SetChartData(data);
    });
}

using To = LineField::To;
using Content = GridColumn::Content;

} // namespace

const RankedScreen frmRatio{
    .window = "frmRatio",
    .heading = {{Label{.name = "lblCompany", .font = {.bold = true}}}, {Label{.name = "lblA"}}},
    .title = u"FINANCIAL RATIO",
    .rules = {{.marker = u"FINANCIAL", .fields = {{To::ScreenText, title, 1}}},
              {.marker = u"COMP:", .fields = {{To::ScreenText, company, 6}}},
              {.marker = u"Mlabel", .fields = {{To::ScreenText, monthLabels, 8, 65}}},
              {.marker = u"1:",
               .open = openNext,
               .fields = {{To::EntryText, code, 3, 4}, {To::EntryNumber, currentValue, 8, valueLength}},
               .then = countEntry},
              {.marker = u"2:", .then = nameByCode},
              {.marker = u"3:",
               .fields = {{To::EntryText, valueText, 31, valueLength},
                          {To::EntryText, benchmarkText, 45, valueLength}},
               .then = nameByLine}},
    .grids = {{.box = {.name = "MSFlexGrid1",
                       .spokenName = u"Ratios",
                       .format =
                           u"Ratio |Ratio Name                                   |Value                 "
                           u"|Benchmark        ",
                       .figures = {2, 3}},
               .columns = {{Content::TextSlot, code},
                           {Content::TextSlot, name},
                           {Content::TextSlot, valueText},
                           {Content::TextSlot, benchmarkText}}}},
    .summary = {{"lblA", [](const RankedFigures& figures) { return figures.texts[title]; }},
                {"lblCompany", [](const RankedFigures& figures) { return figures.texts[company]; }}},
    .key = {.parts = {{.number = false, .gridColumn = 0, .slot = code, .column = 3, .length = 4}},
            .lineStart = u"1:",
            .recordStart = u"1:"},
    .linesAnEntry = 6,
};

const DrillDownDesign frmRatioA{
    .window = "frmRatioA",
    .screen = frmRatio,
    .charts = {{ChartBox{.name = "ChartFX1"}, 1}},
    .draw = draw,
    .buttons = {{.button = {.name = "cmdFormula", .caption = u"Formula", .shortcut = u"Alt+F"},
                 .title = u"Formula",
                 .text = formulaMessage},
                {.button = {.name = "cmdNote", .caption = u"Ratio Notes", .shortcut = u"Alt+N"},
                 .title = u"Ratio Notes",
                 .text = noteMessage}},
};

} // namespace plotvue
