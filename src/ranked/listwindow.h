// The list window of a ranked screen: a summary and grids, which every load fills from the scratch file. A
// click on a row writes the list file and the chosen-row file and shows the drill-down window.
#pragma once

#include "ranked/drilldownwindow.h"
#include "ranked/rankedfigures.h"

namespace plotvue {

class RankedListWindow : public Window {
public:
    // `drillDowns`: the drill-down windows of all lists, which read the same small files.
    RankedListWindow(Platform& platform, Window& startup, DrillDownWindow& drillDown,
                     const std::vector<DrillDownWindow*>& drillDowns, const RankedScreen& screen)
        : Window(platform),
          startup_(startup),
          drillDown_(drillDown),
          drillDowns_(drillDowns),
          screen_(screen)
    {}

    Name name() const override { return screen_.window; }

protected:
    Declaration declare() const override;
    Handlers handlers() override;
    void Form_Load() override;
    void wayOut() override { cmdExit_Click(); }
    bool loadsAnew() const override { return true; } // Kept: a loaded window keeps its chart (docs/kept.md).

private:
    void cmdExit_Click() { leaveFor(startup_); }
    void cmdPrint_Click() { printWindow(); }
    void MSFlexGrid_Click(const RankedGrid& grid, int row);

    void fill(const RankedGrid& grid);
    void writeList(const RankedGrid& grid) const;

    Window& startup_;
    DrillDownWindow& drillDown_;
    const std::vector<DrillDownWindow*>& drillDowns_;
    const RankedScreen& screen_;
    Text capture_; // the lines of the screen are views of it
    RankedFigures figures_;
};

} // namespace plotvue
