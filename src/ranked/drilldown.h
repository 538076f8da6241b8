// The drill-down window of a ranked analysis: charts one entry of the list file and steps through it. It
// shares nothing with the list window but the exchange files, which it reads afresh at every drawing.
#pragma once

#include "platform/form.h"
#include "ranked/analysis.h"

#include <optional>

namespace plotvue {

using Record = std::vector<Text>; // page text 0, then the entry's screen lines

// What a drill-down window is beside its frame.
struct DrillDownDesign {
    Name window;
    TextSpan caption;
    const RankedAnalysis& analysis;
    int mostRecordsToDraw = 100, mostRecordsToStep = 100;

    int width = 1000;              // of the window, as Declaration::width
    std::vector<Item> charts;      // side by side
    std::vector<TextSpan> types{}; // captions of the data types by index; empty: no choice
    // Draws the record; `type` is the index of the chosen data type, 0 where there is no choice.
    void (*draw)(Controls&, const Record&, int type);

    struct Explanation {
        Button button;
        TextSpan title;
        Text (*text)(const Record&);
    };
    std::vector<Explanation> explanations{}; // buttons that show a message about the record drawn
};

class DrillDownWindow : public Form {
public:
    DrillDownWindow(Platform& platform, const DrillDownDesign& design) : Form(platform), design_(design) {}

    Name name() const override { return design_.window; }

protected:
    Declaration declare() const override;
    Handlers handlers() override;
    void Form_Load() override { drawChart(); }
    void wayOut() override { cmdExit_Click(); }

private:
    void cmdBack_Click();
    void cmdNext_Click();
    void cmdExit_Click() { unload(); }
    void cmdPrint_Click() { printWindow(); }
    void optSales_Click() { drawChart(); }
    void explain(const DrillDownDesign::Explanation& explanation);

    void drawChart();
    void choose(const Record& record); // names it in the chosen-row file and draws it
    void endOfList();

    const DrillDownDesign& design_;
    Record drawn_;
};

} // namespace plotvue
