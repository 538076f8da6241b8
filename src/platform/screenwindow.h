// A window that charts the host screen on the clipboard. It reads the clipboard again for every drawing and
// keeps nothing from one drawing to the next.
#pragma once

#include "platform/form.h"

namespace plotvue {

class ScreenWindow : public Form {
public:
    // `home` is shown when the window is left.
    ScreenWindow(Platform& platform, Form& home) : Form(platform), home_(home) {}

protected:
    Handlers handlers() override;
    void Form_Load() override { RefreshChart(); }
    void wayOut() override { cmdExit_Click(); }

    // Draws the screen on the clipboard, or leaves when the clipboard holds another one.
    virtual void RefreshChart() = 0;

    void cmdExit_Click() { leaveFor(home_); }

private:
    void opt12_Click() { RefreshChart(); }
    void optSales_Click() { RefreshChart(); }
    void cmdRefresh_Click() { RefreshChart(); }
    void cmdPrint_Click() { printWindow(); }

    Form& home_;
};

// The declaration of such a window: `content` at the left, then a column with the option frames and the
// buttons Print, Refresh and Exit.
Declaration declareScreenWindow(Name name, TextSpan caption, std::vector<Item> content,
                                std::vector<OptionFrame> frames);

} // namespace plotvue
