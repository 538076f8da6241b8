#include "ranked/profitanalysis.h"

#include "capture/failure.h"
#include "capture/number.h"
#include "ranked/monthcolumns.h"

#include <algorithm>
#include <cmath>

namespace plotvue::profit {

namespace {

using To = Taken::To;

// "Total profit for the territory increased by  1250 (from  8000 to  9250)."
Text totalSentence(const RankedReading& reading)
{
    const double now = std::floor(reading.totals[current]);
    const double before = std::floor(reading.totals[previous]);
    const bool less = now < before;
    return Text(u"Total profit for the territory ") + (less ? u"decreased " : u"increased ") + u"by " +
           signedNumber(finite(less ? before - now : now - before)) + u" (from " + signedNumber(before) +
           u" to " + signedNumber(now) + u").";
}

} // namespace

Marker rankMarker()
{
    return {.text = u"RANK:",
            .opens = Marker::Opens::Rank,
            .takes = {{To::EntryNumber, customer, 14, 5},
                      {To::EntryText, customerName, 20, 30},
                      {To::EntryText, group, 51, 10}}};
}

Marker salesLineMarker()
{
    return {.text = u"FOR SALES", .takes = {{To::PageText, salesLine, 1}}};
}

Marker labelMarker()
{
    return {.text = u"Mlabel", .takes = {{To::PageText, monthLabels, 8, 65}}};
}

Marker totalsMarker(Position previousColumn)
{
    return {.text = u"Mprofit",
            .takes = {{To::PageNumber, current, 9, 10},
                      {To::PageNumber, previous, previousColumn, 31 - previousColumn}}};
}

void count(RankedReading& reading, TextSpan)
{
    ++reading.counts[reading.entry(reading.current).numbers[figure] <= 0 ? losses : gains];
}

std::vector<Item> heading()
{
    return {{TextBox{.name = "txtHeader", .spokenName = u"Analysis"}},
            {TextBox{.name = "txtL2", .spokenName = u"Summary"}},
            {TextBox{.name = "txtL3", .spokenName = u"Sales"}}};
}

std::map<Name, Text (*)(const RankedReading&)> summary()
{
    return {{"txtHeader", [](const RankedReading& reading) { return reading.page[header]; }},
            {"txtL2", totalSentence},
            {"txtL3", [](const RankedReading& reading) { return reading.page[salesLine]; }}};
}

RankedGrid grid(GridBox box, Count count, RankedGrid::Holds holds, std::optional<PictureBox> picture)
{
    using Shows = GridColumn::Shows;
    box.figures = {0, 1, 2};
    return {.box = std::move(box),
            .picture = picture,
            .columns = {{Shows::RowNumber},
                        {Shows::NumberSlot, figure},
                        {Shows::NumberSlot, customer},
                        {Shows::TextSlot, customerName},
                        {Shows::TextSlot, group}},
            .count = count,
            .holds = holds};
}

Key key()
{
    return {.parts = {{.number = true, .gridColumn = 2, .slot = customer, .column = 14, .length = 5},
                      {.number = false, .gridColumn = 4, .slot = group, .column = 51, .length = 10}}};
}

std::vector<Item> charts()
{
    return {{ChartBox{.name = "ChartFX1"}, 2},
            {ChartBox{.name = "ChartFX2",
                      .chart = {.design = {.bars = ChartDesign::Bars::Grouped,
                                           .labels = ChartDesign::Labels::Names},
                                .titles = {{2, u"Volume/Margin components"}}}},
             1}};
}

void draw(Controls& controls, const Record& record, int type, TextSpan componentLine)
{
    const double volume = leadingNumber(mid(componentLine, 19, 9));
    const double margin = leadingNumber(mid(componentLine, 32, 9));
    const TextSpan entry = record[1];
    const MonthType& chosen = monthTypes()[static_cast<std::size_t>(type)];
    // The percentage reads its profit one character wider than the column is.
    const ChartArrayData months = monthSeries(
        record[0], {.volume = record[3], .sales = record[4], .profit = record[5], .profitWidthOfPercent = 9},
        type);
    controls.chart("ChartFX1").change([&](Chart& ChartFX1) {
        ChartFX1.SetTitle(1, chosen.title);
        ChartFX1.SetValueDecimals(chosen.decimals);
        ChartFX1.SetTitle(2, u"Customer: " + Text(mid(entry, 14, 5)) + u" - " + Text(mid(entry, 20, 30)));
        ChartFX1.SetTitle(3, u"Product: " + Text(mid(entry, 51, 10)));
        ChartFX1.SetChartData(months);
    });

    ChartArrayData components;
    components.AddArray(std::vector<double>{volume});
    components.AddArray(std::vector<double>{margin});
    controls.chart("ChartFX2").change([&](Chart& ChartFX2) {
        constexpr Colour green{0, 255, 0}, red{255, 0, 0};
        ChartFX2.SetAxisMax(std::max({volume, margin, 0.0}));
        ChartFX2.SetAxisMin(std::min({volume, margin, 0.0}));
        ChartFX2.SetSeriesColor(0, volume > 0 ? green : red);
        ChartFX2.SetSeriesColor(1, margin > 0 ? green : red);
        ChartFX2.SetChartData(components);
        ChartFX2.SetSeriesLegend(0, u"Volume");
        ChartFX2.SetSeriesLegend(1, u"Margin");
    });
}

} // namespace plotvue::profit
