// The start-up window: recognises what the clipboard holds and shows the window made for it.
#pragma once

#include "platform/form.h"

namespace plotvue {

// The window that serves a screen identifier; windows are kept for the life of the process.
struct Dispatch {
    TextSpan identifier;
    Form* window;
};

class Startup : public Form {
public:
    explicit Startup(Platform& platform) : Form(platform) {}

    // To be set before the window is first shown; looked up in this order.
    std::vector<Dispatch> dispatchTable;

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

    // The screen identifier of the clipboard's text; empty, after a message, when it is none. A capture of
    // a ranked analysis is saved for the list windows to read.
    Text IdentifyScreen();

    Form& windowFor(TextSpan identifier);
};

} // namespace plotvue
