// The history chart window: one chart, the period and data-type options, and three buttons. What differs from
// screen to screen is the screen's data.
#pragma once

#include "history/screen.h"
#include "platform/form.h"

namespace plotvue {

class HistoryWindow : public Form {
public:
    // `startup` is shown again when the window is left.
    HistoryWindow(Platform& platform, Form& startup, const MonthlyScreen& screen)
        : Form(platform),
          startup_(startup),
          screen_(screen)
    {}

    Name name() const override { return screen_.window; }

protected:
    Declaration declare() const override;
    Handlers handlers() override;
    void Form_Load() override;
    void wayOut() override { cmdExit_Click(); }

private:
    void opt12_Click() { RefreshChart(); }
    void optSales_Click() { RefreshChart(); }
    void cmdRefresh_Click() { RefreshChart(); }
    void cmdPrint_Click() { printWindow(); }
    void cmdExit_Click() { leaveFor(startup_); }

    // Reads the clipboard afresh, parses it and draws; nothing is kept from one drawing to the next.
    void RefreshChart();

    int chosenMonths() const;
    const DataType& chosenType() const;

    Form& startup_;
    const MonthlyScreen& screen_;
};

// The declaration of a screen's window, as a plain value.
Declaration declareHistoryWindow(const MonthlyScreen& screen);

} // namespace plotvue
