// A window that charts the host screen on the clipboard. It reads the clipboard each time it draws and keeps
// no figures between drawings.
#pragma once

#include "window/window.h"

#include <optional>

namespace plotvue {

class ScreenWindow : public Window {
public:
    // `home` is shown when the user exits this window.
    ScreenWindow(Platform& platform, Window& home) : Window(platform), home_(home) {}

protected:
    Handlers handlers() override;
    void Form_Load() override { RefreshChart(); }
    void shownAgain() override;
    void wayOut() override { cmdExit_Click(); }

    // Charts the clipboard's text. Returns whether it did: a window refuses the text of another screen.
    virtual bool drawChart(const Text& capture) = 0;

    // Exits, because the clipboard holds a different screen.
    void refuse();

private:
    // What the window charted last: the notice compares it with what the user expects to see.
    struct Drawing {
        Text capture;
        std::map<Name, std::vector<int>> options;
    };

    void RefreshChart();

    void opt12_Click() { RefreshChart(); }
    void optSales_Click() { RefreshChart(); }
    void cmdRefresh_Click() { RefreshChart(); }
    void cmdPrint_Click() { printWindow(); }
    void cmdExit_Click() { leaveFor(home_); }

    Window& home_;
    std::optional<Drawing> drawn_;
};

// Declares such a window: `content` on the left, and on the right a column with the option frames and the
// buttons Print, Refresh and Exit.
Declaration declareScreenWindow(Name name, TextSpan caption, std::vector<Item> content,
                                std::vector<OptionFrame> frames);

} // namespace plotvue
