// Financial ratios: value and benchmark of each, 13 months of one, its formula and what it means.
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
// A value has 13 characters, from column 9 on every 14. The sixth line is the note, or STD for the one known
// by the code; the third may carry a name of the ratio's own behind "3A:".

#include "capture/number.h"
#include "ranked/analyses.h"
#include "ranked/monthcolumns.h"
#include "ranked/ratiotexts.h"
#include "ranked/reading.h"

#include <algorithm>

namespace plotvue {

namespace {

enum Number { currentValue };
enum EntryTextSlot { code, name, valueText, benchmarkText };
enum PageTextSlot { monthLabels, title, company };

constexpr Position valueLength = 13;
constexpr int monthsOnFirstLine = 7;

TextSpan codeOf(TextSpan line)
{
    return mid(line, 3, 4);
}

void nameByCode(RankedReading& reading, TextSpan line)
{
    reading.entry(reading.current).texts[name] = ratioName(codeOf(line));
}

// The name behind "3A:", up to a bar or the line's end; null where the line has none.
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

void nameByLine(RankedReading& reading, TextSpan line)
{
    if (const auto own = ownName(line))
        reading.entry(reading.current).texts[name] = *own;
}

// What stands behind "4: ". Throws Failure for a line shorter than that.
TextSpan textOf(const Record& record, std::size_t line)
{
    return mid(record[line], 4, static_cast<Position>(record[line].size()) - 3);
}

Text formulaMessage(const Record& record)
{
    return u"Formula in QXM: " + Text(textOf(record, 5)) + u"\r\r" + u"Current month data: " +
           Text(textOf(record, 4));
}

Text noteMessage(const Record& record)
{
    const TextSpan note = textOf(record, 6);
    const TextSpan bare = note.ends_with(carriageReturn) ? withoutLast(note) : note;
    return Text(bare == u"STD" ? ratioNote(codeOf(record[2])) : note);
}

double monthValue(const Record& record, int month)
{
    const bool first = month <= monthsOnFirstLine;
    const int place = first ? month : month - monthsOnFirstLine;
    return leadingNumber(mid(record[first ? 1 : 2], 14 * place - 5, valueLength));
}

void draw(Controls& controls, const Record& record, int)
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
    // A screen too short for its explanations fails here, not when they are asked for.
    for (const std::size_t line : {4u, 5u, 6u})
        textOf(record, line);

    controls.chart("ChartFX1").change([&](Chart& ChartFX1) {
        ChartFX1.SetTitle(2, ownName(record[3]).value_or(ratioOrComponentName(codeOf(record[2]))));
        ChartFX1.SetAxisMax(largest);
        ChartArrayData data;
        data.AddArray(values);
        data.AddArray(labels);
        ChartFX1.SetChartData(data);
    });
}

void countEntry(RankedReading& reading, TextSpan)
{
    reading.counts[0] = reading.current;
}

using To = Taken::To;
using Shows = GridColumn::Shows;

} // namespace

const RankedAnalysis frmRatio{
    .window = "frmRatio",
    .caption = u"PlotVue",
    .heading = {{Label{.name = "lblCompany", .font = {.bold = true}}}, {Label{.name = "lblA"}}},
    .title = u"FINANCIAL RATIO",
    .markers = {{.text = u"FINANCIAL", .takes = {{To::PageText, title, 1}}},
                {.text = u"COMP:", .takes = {{To::PageText, company, 6}}},
                {.text = u"Mlabel", .takes = {{To::PageText, monthLabels, 8, 65}}},
                {.text = u"1:",
                 .opens = Marker::Opens::NextEntry,
                 .takes = {{To::EntryText, code, 3, 4}, {To::EntryNumber, currentValue, 8, valueLength}},
                 .then = countEntry},
                {.text = u"2:", .then = nameByCode},
                {.text = u"3:",
                 .takes = {{To::EntryText, valueText, 31, valueLength},
                           {To::EntryText, benchmarkText, 45, valueLength}},
                 .then = nameByLine}},
    .grids = {{.box = {.name = "MSFlexGrid1",
                       .spokenName = u"Ratios",
                       .format =
                           u"Ratio |Ratio Name                                   |Value                 "
                           u"|Benchmark        ",
                       .figures = {2, 3}},
               .picture = {},
               .columns = {{Shows::TextSlot, code},
                           {Shows::TextSlot, name},
                           {Shows::TextSlot, valueText},
                           {Shows::TextSlot, benchmarkText}},
               .count = 0}},
    .summary = {{"lblA", [](const RankedReading& reading) { return reading.page[title]; }},
                {"lblCompany", [](const RankedReading& reading) { return reading.page[company]; }}},
    .key = {.parts = {{.number = false, .gridColumn = 0, .slot = code, .column = 3, .length = 4}},
            .lineBegins = u"1:",
            .recordBegins = u"1:"},
    .linesAnEntry = 6,
};

const DrillDownDesign frmRatioA{
    .window = "frmRatioA",
    .caption = u"PlotVue",
    .analysis = frmRatio,
    .charts = {{ChartBox{.name = "ChartFX1"}, 1}},
    .draw = draw,
    .explanations = {{.button = {.name = "cmdFormula", .caption = u"Formula", .shortcut = u"Alt+F"},
                      .title = u"Formula",
                      .text = formulaMessage},
                     {.button = {.name = "cmdNote", .caption = u"Ratio Notes", .shortcut = u"Alt+N"},
                      .title = u"Ratio Notes",
                      .text = noteMessage}},
};

} // namespace plotvue
