#include "ranked/profitanalysis.h"

#include "capture/failure.h"
#include "capture/number.h"
#include "ranked/monthcolumns.h"

#include <algorithm>
#include <cmath>

namespace plotvue::profit {

namespace {

using To = LineField::To;
using Content = GridColumn::Content;

// "Total profit for the territory increased by  1250 (from  8000 to  9250)."
Text totalSentence(const RankedFigures& figures)
{
    const double now = std::floor(figures.numbers[current]);
    const double before = std::floor(figures.numbers[previous]);
    const bool less = now < before;
    return Text(u"Total profit for the territory ") + (less ? u"decreased " : u"increased ") + u"by " +
           signedNumber(finite(less ? before - now : now - before)) + u" (from " + signedNumber(before) +
           u" to " + signedNumber(now) + u").";
}

bool isGain(const Entry& entry)
{
    return entry.numbers[figure] >= 0;
}

bool isLoss(const Entry& entry)
{
    return entry.numbers[figure] <= 0;
}

} // namespace

void count(RankedFigures& figures, TextSpan)
{
    ++figures.counts[figures.currentEntry().numbers[figure] <= 0 ? losses : gains];
}

RankedGrid grid(Count count, GridBox box, std::optional<PictureBox> picture)
{
    box.figures = {0, 1, 2};
    return {.box = std::move(box),
            .columns = {{Content::RowNumber},
                        {Content::NumberSlot, figure},
                        {Content::NumberSlot, customer},
                        {Content::TextSlot, customerName},
                        {Content::TextSlot, group}},
            .count = count,
            .lists = count == gains ? isGain : isLoss,
            .picture = picture};
}

RankedScreen list(RankedScreen own, Position previousColumn)
{
    own.rules.insert(own.rules.begin(), {.marker = u"RANK:",
                                         .open = openRank,
                                         .fields = {{To::EntryNumber, customer, 14, 5},
                                                    {To::EntryText, customerName, 20, 30},
                                                    {To::EntryText, group, 51, 10}}});
    own.rules.push_back({.marker = u"FOR SALES", .fields = {{To::ScreenText, salesLine, 1}}});
    own.rules.push_back({.marker = u"Mlabel", .fields = {{To::ScreenText, monthLabels, 8, 65}}});
    own.rules.push_back({.marker = u"Mprofit",
                         .fields = {{To::ScreenNumber, current, 9, 10},
                                    {To::ScreenNumber, previous, previousColumn, 31 - previousColumn}}});
    own.heading = {{TextBox{.name = "txtHeader", .spokenName = u"Analysis"}},
                   {TextBox{.name = "txtL2", .spokenName = u"Summary"}},
                   {TextBox{.name = "txtL3", .spokenName = u"Sales"}}};
    own.summary = {{"txtHeader", [](const RankedFigures& figures) { return figures.texts[header]; }},
                   {"txtL2", totalSentence},
                   {"txtL3", [](const RankedFigures& figures) { return figures.texts[salesLine]; }}};
    own.key = {.parts = {{.number = true, .gridColumn = 2, .slot = customer, .column = 14, .length = 5},
                         {.number = false, .gridColumn = 4, .slot = group, .column = 51, .length = 10}}};
    own.linesAnEntry = 5;
    return own;
}

DrillDownDesign drillDown(Name window, const RankedScreen& screen,
                          void (&drawEntry)(Controls&, const EntryLines&, int type))
{
    return {.window = window,
            .screen = screen,
            .width = 1100,
            .charts = {{ChartBox{.name = "ChartFX1"}, 2},
                       {ChartBox{.name = "ChartFX2",
                                 .chart = {.design = {.bars = ChartDesign::Bars::Grouped,
                                                      .labels = ChartDesign::Labels::Names},
                                           .titles = {{2, u"Volume/Margin components"}}}},
                        1}},
            .types = monthTypeOptions(),
            .draw = drawEntry};
}

void draw(Controls& controls, const EntryLines& record, int type, TextSpan componentLine)
{
    const double volume = leadingNumber(mid(componentLine, 19, 9));
    const double margin = leadingNumber(mid(componentLine, 32, 9));
    const TextSpan entry = record[1];
    const MonthType& chosen = monthTypes()[static_cast<std::size_t>(type)];
    // Kept: a percentage one column too wide (docs/kept.md).
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
        // Kept: a component of 0 is red (docs/kept.md).
        ChartFX2.SetSeriesColor(0, volume > 0 ? green : red);
        ChartFX2.SetSeriesColor(1, margin > 0 ? green : red);
        ChartFX2.SetChartData(components);
        ChartFX2.SetSeriesLegend(0, u"Volume");
        ChartFX2.SetSeriesLegend(1, u"Margin");
    });
}

} // namespace plotvue::profit
