// The list window of a ranked analysis: summary and grids, filled once at every load from the scratch file. A
// click on a row hands the list and the row to the drill-down window through the exchange files.
#pragma once

#include "platform/form.h"
#include "ranked/reading.h"

namespace plotvue {

class RankedListWindow : public Form {
public:
    RankedListWindow(Platform& platform, Form& startup, Form& drillDown, const RankedAnalysis& analysis)
        : Form(platform),
          startup_(startup),
          drillDown_(drillDown),
          analysis_(analysis)
    {}

    Name name() const override { return analysis_.window; }

protected:
    Declaration declare() const override;
    Handlers handlers() override;
    void Form_Load() override;
    void wayOut() override { cmdExit_Click(); }
    bool loadsAnew() const override { return true; }

private:
    void cmdExit_Click() { leaveFor(startup_); }
    void cmdPrint_Click() { printWindow(); }
    void cmdTips_Click() { platform().message({}, analysis_.tips); }
    void MSFlexGrid_Click(const RankedGrid& grid, int row);

    void fill(const RankedGrid& grid);
    void writeChosenRow(const RankedGrid& grid, int row);
    void writeList(const RankedGrid& grid) const;

    Form& startup_;
    Form& drillDown_;
    const RankedAnalysis& analysis_;
    Text capture_; // the reading's views point into it
    RankedReading reading_;
};

} // namespace plotvue
