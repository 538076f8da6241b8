// Vendor inventory: the beginning-of-month inventory by pairs of vendor and product category, 13 months of
// one pair, and the age of its FIFO inventory.
//
//     VENDOR INVENTORY ANALYSIS, BEGINNING OF MONTH NOVEMBER 1999
//     Total EOM FIFO value of all inventory 1,364,497, all warehouses
//     Mlabel OCT99SEP99AUG99JUL99JUN99...
//     RANK:  1        HARVEST OIL BLENDERS                 MOTOR OIL
//     F:   97787   92450   24.9    60702    8434    9218    3467   15967
//     V     1109    1029    1100     973    1082     912...
//     S     5241    4850    5205    4466    5046    4099...
//     P     1409    1281    1423    1197    1196    1162...
//
// The labels begin in column 8. Every figure of the last three lines has 8 columns, the first from column 3
// on. Kept: fields that share a column (docs/kept.md).

#include "capture/failure.h"
#include "capture/number.h"
#include "ranked/monthcolumns.h"
#include "ranked/rankedfigures.h"
#include "ranked/rankedscreens.h"

#include <algorithm>
#include <cmath>

namespace plotvue {

namespace {

enum EntryNumber { fifoValue, secondAmount }; // Kept: figures that are not shown (docs/kept.md).
enum EntryText { vendor, category, stockMonths };
enum ScreenText { monthLabels, title, summaryLine };

constexpr int buckets = 5;
constexpr Position bucketLength = 8;
constexpr TextSpan bucketLabels = u"<30 Days31 - 60 61 - 90 91 - 120Over 120";

// Kept: how rows are counted, a missing rank (docs/kept.md).
void countHighestRank(RankedFigures& figures, TextSpan)
{
    figures.counts[0] = std::max(figures.counts[0], figures.currentRank);
}

Text tips(const EntryLines&)
{
    return u"This is your beginning of month inventory, grouped by Vendor and Product Category.  Items are\r"
           u"ranked by value.  The 'Stock Months' column shows the time, in months, needed to deplete\r"
           u"this inventory, based on past sales, averaged over three months.";
}

// "$1,234" or "-$1,234", rounded to whole dollars. Kept: nothing in dollars (docs/kept.md).
Text dollars(double amount)
{
    const double whole = std::round(amount);
    Text digits = whole == 0 ? Text() : plainNumber(std::fabs(whole));
    for (auto at = static_cast<Position>(digits.size()) - 3; at > 0; at -= 3)
        digits.insert(static_cast<std::size_t>(at), 1, u',');
    return (whole < 0 ? u"-$" : u"$") + digits;
}

void drawAges(Chart& ChartFX2, TextSpan line)
{
    std::vector<double> ages;
    std::vector<Text> labels;
    double sum = 0;
    for (int i = 0; i < buckets; ++i) {
        ages.push_back(leadingNumber(mid(line, 27 + bucketLength * i, bucketLength)));
        labels.emplace_back(mid(bucketLabels, bucketLength * i + 1, bucketLength));
        sum = finite(sum + ages.back());
    }
    ChartFX2.SetTitle(3, u"FIFO: " + dollars(sum));
    ChartArrayData data;
    data.AddArray(ages);
    data.AddArray(labels);
    ChartFX2.SetChartData(data);
}

void draw(Controls& controls, const EntryLines& record, int type)
{
    const TextSpan entry = record[1];
    controls.chart("ChartFX2").change([&](Chart& ChartFX2) { drawAges(ChartFX2, record[2]); });

    const ChartArrayData months =
        monthSeries(record[0], {.volume = record[3], .sales = record[4], .profit = record[5]}, type);
    controls.chart("ChartFX1").change([&](Chart& ChartFX1) {
        // Kept: decimals that are not set (docs/kept.md).
        ChartFX1.SetTitle(1, monthTypes()[static_cast<std::size_t>(type)].title);
        ChartFX1.SetTitle(2, u"Vendor: " + Text(mid(entry, 17, 30)));
        ChartFX1.SetTitle(3, u"Category: " + Text(mid(entry, 54, 30)));
        ChartFX1.SetChartData(months);
    });
}

using To = LineField::To;
using Content = GridColumn::Content;

} // namespace

const RankedScreen frmVendInv{
    .window = "frmVendInv",
    .heading = {{TextBox{.name = "txtHeader", .spokenName = u"Analysis"}},
                {TextBox{.name = "txtHeader2", .spokenName = u"Summary"}}},
    .buttons = {{.button = {.name = "cmdTips", .caption = u"Tips", .shortcut = u"F1"}, .text = tips}},
    .title = u"VENDOR INVENTORY AN", // Kept: a screen that is recognised and refused (docs/kept.md).
    .rules = {{.marker = u"RANK:",
               .open = openRank,
               .fields = {{To::EntryText, vendor, 17, 30}, {To::EntryText, category, 54, 30}},
               .then = countHighestRank},
              {.marker = u"F:",
               .fields = {{To::EntryNumber, fifoValue, 3, 9},
                          {To::EntryNumber, secondAmount, 11, 9},
                          {To::EntryText, stockMonths, 19, 7}}},
              {.marker = u"VENDOR INVEN", .fields = {{To::ScreenText, title, 1}}},
              {.marker = u"Total EOM", .fields = {{To::ScreenText, summaryLine, 1}}},
              {.marker = u"Mlabel", .fields = {{To::ScreenText, monthLabels, 8, 65}}}},
    .grids = {{.box = {.name = "MSFlexGrid1",
                       .spokenName = u"Inventory",
                       .format =
                           u"Rank |EOM FIFO |Vendor Name                                  |Product Category  "
                           u"                                |Stock Months",
                       .figures = {0, 1, 4}},
               .columns = {{Content::RowNumber},
                           {Content::NumberSlot, fifoValue},
                           {Content::TextSlot, vendor},
                           {Content::TextSlot, category},
                           {Content::TextSlot, stockMonths}}}},
    .summary = {{"txtHeader", [](const RankedFigures& figures) { return figures.texts[title]; }},
                {"txtHeader2", [](const RankedFigures& figures) { return figures.texts[summaryLine]; }}},
    .key = {.parts = {{.number = false, .gridColumn = 2, .slot = vendor, .column = 17, .length = 30},
                      {.number = false, .gridColumn = 3, .slot = category, .column = 54, .length = 30}}},
    .linesAnEntry = 5,
};

const DrillDownDesign frmVendInvA{
    .window = "frmVendInvA",
    .screen = frmVendInv,
    .width = 1100,
    .charts = {{ChartBox{.name = "ChartFX1"}, 2},
               {ChartBox{.name = "ChartFX2",
                         .chart = {.design = {.labels = ChartDesign::Labels::Names},
                                   .titles = {{2, u"FIFO Age"}}}},
                1}},
    .types = monthTypeOptions(),
    .draw = draw,
};

} // namespace plotvue
