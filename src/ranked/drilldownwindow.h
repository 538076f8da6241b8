// The drill-down window of a ranked screen: charts one entry of the list file and steps through the list.
// Kept: files between two windows (docs/kept.md).
#pragma once

#include "ranked/rankedscreen.h"
#include "window/window.h"

namespace plotvue {

struct DrillDownDesign {
    Name window;
    const RankedScreen& screen;
    struct Limits {
        int draw = 100, step = 100;
    } limits{}; // how many records of the list file are searched for the entry to draw, or to step from

    int width = 1000;              // of the window, as Declaration::width
    std::vector<Item> charts;      // side by side
    std::vector<TextSpan> types{}; // captions of the data types by index; empty: no choice
    // Draws the record; `type` is the index of the chosen data type, 0 where there is no choice. A reference,
    // so that it cannot be forgotten.
    void (&draw)(Controls&, const EntryLines&, int type);
    std::vector<MessageButton> buttons{}; // about the record that was drawn last
};

class DrillDownWindow : public Window {
public:
    DrillDownWindow(Platform& platform, const DrillDownDesign& design) : Window(platform), design_(design) {}

    Name name() const override { return design_.window; }

    // Must be called when another list has replaced the small files. An open window then shows a notice,
    // because it can no longer draw its own entries.
    void listReplaced();

protected:
    Declaration declare() const override;
    Handlers handlers() override;
    void Form_Load() override { drawChart(); }
    void shownAgain() override;
    void wayOut() override { cmdExit_Click(); }

private:
    void cmdBack_Click();
    void cmdNext_Click();
    void cmdExit_Click() { unload(); }
    void cmdPrint_Click() { printWindow(); }
    void optSales_Click() { drawChart(); }

    // The record of the chosen row. Throws Failure when the small files cannot be read.
    EntryLines chosenRecord() const;
    // Draws the record of the chosen row with the chosen data type. Throws as chosenRecord().
    void drawChart();
    void choose(const EntryLines& record); // names it in the chosen-row file and draws it
    void endOfList();

    const DrillDownDesign& design_;
    EntryLines drawn_;
};

} // namespace plotvue
