// What the month-to-month and the ranked profit screen have in common. The screens differ only in the line
// with the figures of an entry, and their windows are alike.
#pragma once

#include "ranked/rankedfigures.h"
#include "ranked/rankedscreens.h"

namespace plotvue::profit {

enum EntryNumber { figure, customer, volumePart, marginPart }; // figure: the gain, or the current profit
enum EntryText { customerName, group };
enum ScreenText { monthLabels, header, salesLine };
enum ScreenNumber { current, previous }; // the two profits of the whole territory
enum Count { gains, losses };

// Counts the current entry as a loss when its figure is 0 or less, otherwise as a gain.
// Kept: a gain of 0, an entry counted twice (docs/kept.md).
void count(RankedFigures& figures, TextSpan line);

// The grid of the gains or the losses. Kept: a gain of 0 (docs/kept.md).
RankedGrid grid(Count count, GridBox box, std::optional<PictureBox> picture = {});

// Adds to `own` what both screens have in common: the heading, the key, a rule before its own rules and three
// after them. On the "Mprofit" line, the territory's previous profit is in `previousColumn` to column 30.
RankedScreen list(RankedScreen own, Position previousColumn);

DrillDownDesign drillDown(Name window, const RankedScreen& screen,
                          void (&drawEntry)(Controls&, const EntryLines&, int type));

// Draws both charts. `componentLine` is the line with the two components of the change.
void draw(Controls& controls, const EntryLines& record, int type, TextSpan componentLine);

} // namespace plotvue::profit
