// Past-due receivables: customers by what they owe, and how old one customer's debts were in six months.
//
//     RANKED PAST DUE RECEIVABLES, AS OF 10/31/99
//     Mlabel OCT99SEP99AUG99JUL99JUN99MAY99
//     RANK:  1     10288 WESTFORK DAIRY                 ALDER GROVE     WA    18300
//            CURRENT  1 - 30 31 - 60 61 - 90 91 - 120OVER 120
//     OCT99    10280    8624    5591    3725     855       0
//     SEP99    11084    4151    1794     983     394       0
//
// The labels are the ageing key, the current month first. Every caption has 8 columns, the first from column
// 8 on; every amount has 8 columns, the first from column 7 on. The amounts after the first are past due.

#include "capture/failure.h"
#include "capture/number.h"
#include "ranked/monthcolumns.h"
#include "ranked/rankedfigures.h"
#include "ranked/rankedscreens.h"

#include <algorithm>

namespace plotvue {

namespace {

enum EntryNumber { customer, total, pastDue };
enum EntryText { customerName, city, state };
enum ScreenText { ageingKey, title };

constexpr int months = 6;
constexpr int maxBuckets = 8;
constexpr int bucketsAlwaysRead = 4; // Kept: four amounts are always summed (docs/kept.md).

double bucket(TextSpan line, int number)
{
    return leadingNumber(mid(line, 7 + 8 * number, 8));
}

// Whether the line is long enough for the bucket.
bool reaches(TextSpan line, int number)
{
    return static_cast<int>(line.size()) >= 15 + 8 * number;
}

// Kept: the month's label anywhere (docs/kept.md).
void startWithCrosses(RankedFigures& figures)
{
    figures.texts[ageingKey] = u"xxxxx";
}

// Kept: how rows are counted (docs/kept.md).
void countEntry(RankedFigures& figures, TextSpan)
{
    ++figures.counts[0];
}

// Kept: the month's label anywhere (docs/kept.md).
void takeAgeing(RankedFigures& figures, TextSpan line)
{
    if (!holds(line, mid(figures.texts[ageingKey], 1, 5)))
        return;
    Entry& entry = figures.currentEntry();
    const double current = bucket(line, 0);
    double sum = current;
    for (int j = 1; j < maxBuckets && reaches(line, j); ++j)
        sum = finite(sum + bucket(line, j));
    entry.numbers[total] = sum;
    entry.numbers[pastDue] = finite(sum - current);
}

// The number of amounts for which the caption line is long enough.
int bucketsIn(TextSpan captions)
{
    int j = 1;
    while (j < maxBuckets && reaches(captions, j))
        ++j;
    return j;
}

void draw(Controls& controls, const EntryLines& record, int)
{
    const TextSpan entry = record[1], captions = record[2];
    const int buckets = bucketsIn(captions);
    std::vector<std::vector<double>> series(static_cast<std::size_t>(buckets), std::vector<double>(months));
    std::vector<Text> labels(months);
    double largest = std::max(0.0, leadingNumber(mid(entry, 70, 8)));
    for (int month = 1; month <= months; ++month) {
        const TextSpan line = record[static_cast<std::size_t>(2 + month)];
        const auto point = static_cast<std::size_t>(months - month);
        labels[point] = monthLabel(record[0], month);
        double sum = 0;
        for (int j = 0; j < std::max(buckets, bucketsAlwaysRead); ++j) {
            const double amount = bucket(line, j);
            sum = finite(sum + amount);
            if (j < buckets)
                series[static_cast<std::size_t>(j)][point] = amount;
        }
        largest = std::max(largest, sum);
    }

    controls.chart("ChartFX1").change([&](Chart& ChartFX1) {
        ChartFX1.SetTitle(2, Text(mid(entry, 14, 5)) + u" - " + Text(mid(entry, 20, 30)) + u' ' +
                                 Text(mid(entry, 51, 15)) + u' ' + Text(mid(entry, 67, 2)));
        ChartFX1.SetTitle(3, u"Accounts Receivable Analysis");
        ChartFX1.SetAxisMax(largest);
        ChartArrayData data;
        for (const std::vector<double>& amounts : series)
            data.AddArray(amounts);
        data.AddArray(labels);
        ChartFX1.SetChartData(data);
        for (int j = 0; j < buckets; ++j)
            ChartFX1.SetSeriesLegend(j, mid(captions, 8 + 8 * j, 8));
    });
}

using To = LineField::To;
using Content = GridColumn::Content;

} // namespace

const RankedScreen frmPastdue{
    .window = "frmPastdue",
    // Kept: names of controls (docs/kept.md).
    .heading = {{Label{.name = "txtHeader", .font = {.bold = true}}}},
    .title = u"RANKED PAST",
    .maxLines = 1000,
    .prepare = startWithCrosses,
    .rules = {{.marker = u"RANK:",
               .open = openRank,
               .fields = {{To::EntryNumber, customer, 14, 5},
                          {To::EntryText, customerName, 20, 30},
                          {To::EntryText, city, 51, 15},
                          {To::EntryText, state, 67, 2}},
               .then = countEntry},
              {.then = takeAgeing},
              {.marker = u"RANKED PAST", .fields = {{To::ScreenText, title, 1}}},
              {.marker = u"Mlabel", .fields = {{To::ScreenText, ageingKey, 8, 30}}}},
    .grids = {{.box = {.name = "MSFlexGrid1",
                       .spokenName = u"Past-due customers",
                       .format =
                           u"Rank |Customer|Customer Name                                           |City   "
                           u"                           |ST |Total A/R |Past Due ",
                       .figures = {0, 1, 5, 6}},
               .columns = {{Content::RowNumber},
                           {Content::NumberSlot, customer},
                           {Content::TextSlot, customerName},
                           {Content::TextSlot, city},
                           {Content::TextSlot, state},
                           {Content::NumberSlot, total},
                           {Content::NumberSlot, pastDue}}}},
    .summary = {{"txtHeader", [](const RankedFigures& figures) { return figures.texts[title]; }}},
    .key = {.parts = {{.number = true, .gridColumn = 1, .slot = customer, .column = 14, .length = 5}},
            .lineStart = u"RANK:"},
    .linesAnEntry = 8,
};

const DrillDownDesign frmPastdueA{
    .window = "frmPastdueA",
    .screen = frmPastdue,
    // Kept: the hundredth record (docs/kept.md).
    .limits = {.draw = 1000, .step = 500},
    .charts = {{ChartBox{.name = "ChartFX1"}, 1}},
    .draw = draw,
};

} // namespace plotvue
