// The start-up window: recognises what the clipboard holds and shows the window made for it.
#pragma once

#include "app/screens.h"
#include "window/window.h"

#include <map>

namespace plotvue {

class Startup : public Window {
public:
    explicit Startup(Platform& platform) : Window(platform) {}

    // The window that each screen opens. Every screen must have one here before this window is first shown.
    std::map<const Screen*, Window*> windows;

    Name name() const override { return "startup"; }

protected:
    Declaration declare() const override;
    Handlers handlers() override;
    void Form_Load() override;
    void wayOut() override { Command2_Click(); }

private:
    void Command1_Click() { ReloadScreen(); }
    void Command2_Click() { platform().end(); }
    void ReloadScreen();

    // The screen on the clipboard; null, after a message, when there is none. The capture of a ranked
    // screen is saved for its list window to read.
    const Screen* IdentifyScreen();
};

} // namespace plotvue
