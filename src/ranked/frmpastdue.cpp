// Past-due receivables: customers by what they owe, and one customer's ageing over six months.
//
//     RANKED PAST DUE RECEIVABLES, AS OF 10/31/99
//     Mlabel OCT99SEP99AUG99JUL99JUN99MAY99
//     RANK:  1     10288 WESTFORK DAIRY                 ALDER GROVE     WA    18300
//            CURRENT  1 - 30 31 - 60 61 - 90 91 - 120OVER 120
//     OCT99    10280    8624    5591    3725     855       0
//     SEP99    11084    4151    1794     983     394       0
//
// The labels are the ageing key, the current month first. A caption has 8 characters from column 8 on, an
// amount 8 from column 7 on.

#include "capture/failure.h"
#include "capture/number.h"
#include "ranked/analyses.h"
#include "ranked/reading.h"

#include <algorithm>

namespace plotvue {

namespace {

enum Number { customer, total, pastDue };
enum EntryTextSlot { customerName, city, state };
enum PageTextSlot { ageingKey, title };

constexpr int months = 6;
constexpr int mostBuckets = 8;
constexpr int bucketsAlwaysRead = 4;

double bucket(TextSpan line, int number)
{
    return leadingNumber(mid(line, 7 + 8 * number, 8));
}

void countEntry(RankedReading& reading, TextSpan)
{
    ++reading.counts[0];
}

void takeAgeing(RankedReading& reading, TextSpan line)
{
    Entry& entry = reading.entry(reading.current);
    const double current = bucket(line, 0);
    double sum = current;
    for (int j = 1; j < mostBuckets && static_cast<int>(line.size()) >= 15 + 8 * j; ++j)
        sum = finite(sum + bucket(line, j));
    entry.numbers[total] = sum;
    entry.numbers[pastDue] = finite(sum - current);
}

// How many amount columns the caption line is long enough for.
int bucketsIn(TextSpan captions)
{
    int j = 1;
    while (j < mostBuckets && 8 * j + 15 <= static_cast<int>(captions.size()))
        ++j;
    return j;
}

void draw(Controls& controls, const Record& record, int)
{
    const TextSpan entry = record[1], captions = record[2];
    const int buckets = bucketsIn(captions);
    std::vector<std::vector<double>> series(static_cast<std::size_t>(buckets), std::vector<double>(months));
    std::vector<Text> labels(months);
    double largest = std::max(0.0, leadingNumber(mid(entry, 70, 8)));
    for (int month = 1; month <= months; ++month) {
        const TextSpan line = record[static_cast<std::size_t>(2 + month)];
        const auto point = static_cast<std::size_t>(months - month);
        labels[point] = mid(record[0], 5 * month - 4, 5);
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

using To = Taken::To;
using Shows = GridColumn::Shows;

} // namespace

const RankedAnalysis frmPastdue{
    .window = "frmPastdue",
    .caption = u"PlotVue",
    .heading = {{Label{.name = "txtHeader", .font = {.bold = true}}}},
    .title = u"RANKED PAST",
    .mostLines = 1000,
    .markers = {{.text = u"RANK:",
                 .opens = Marker::Opens::Rank,
                 .takes = {{To::EntryNumber, customer, 14, 5},
                           {To::EntryText, customerName, 20, 30},
                           {To::EntryText, city, 51, 15},
                           {To::EntryText, state, 67, 2}},
                 .then = countEntry},
                // Any line that holds the current month's label counts, another "Mlabel" line included.
                {.then = takeAgeing, .keyOfPage = true},
                {.text = u"RANKED PAST", .takes = {{To::PageText, title, 1}}},
                {.text = u"Mlabel", .takes = {{To::PageText, ageingKey, 8, 30}}}},
    .pageAtStart = u"xxxxx",
    .grids = {{.box = {.name = "MSFlexGrid1",
                       .spokenName = u"Past-due customers",
                       .format =
                           u"Rank |Customer|Customer Name                                           |City   "
                           u"                           |ST |Total A/R |Past Due ",
                       .figures = {0, 1, 5, 6}},
               .picture = {},
               .columns = {{Shows::RowNumber},
                           {Shows::NumberSlot, customer},
                           {Shows::TextSlot, customerName},
                           {Shows::TextSlot, city},
                           {Shows::TextSlot, state},
                           {Shows::NumberSlot, total},
                           {Shows::NumberSlot, pastDue}},
               .count = 0}},
    .summary = {{"txtHeader", [](const RankedReading& reading) { return reading.page[title]; }}},
    .key = {.parts = {{.number = true, .gridColumn = 1, .slot = customer, .column = 14, .length = 5}},
            .lineBegins = u"RANK:"},
    .linesAnEntry = 8,
};

const DrillDownDesign frmPastdueA{
    .window = "frmPastdueA",
    .caption = u"PlotVue",
    .analysis = frmPastdue,
    .mostRecordsToDraw = 1000,
    .mostRecordsToStep = 500,
    .charts = {{ChartBox{.name = "ChartFX1"}, 1}},
    .draw = draw,
};

} // namespace plotvue
