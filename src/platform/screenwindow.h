// A window that charts the host screen on the clipboard. It reads the clipboard each time it draws and keeps
// no data between drawings.
#pragma once

#include "platform/form.h"

namespace plotvue {

class ScreenWindow : public Form {
public:
    // `home` is shown when the user exits this window.
    ScreenWindow(Platform& platform, Form& home) : Form(platform), home_(home) {}

protected:
    Handlers handlers() override;
    void Form_Load() override { RefreshChart(); }
    void wayOut() override { cmdExit_Click(); }

    // Charts the screen on the clipboard, or exits if the clipboard holds a different screen.
    virtual void RefreshChart() = 0;

    void cmdExit_Click() { leaveFor(home_); }

private:
    void opt12_Click() { RefreshChart(); }
    void optSales_Click() { RefreshChart(); }
    void cmdRefresh_Click() { RefreshChart(); }
    void cmdPrint_Click() { printWindow(); }

    Form& home_;
};

// Declares such a window: `content` on the left, and on the right a column with the option frames and the
// buttons Print, Refresh and Exit.
Declaration declareScreenWindow(Name name, TextSpan caption, std::vector<Item> content,
                                std::vector<OptionFrame> frames);

} // namespace plotvue
