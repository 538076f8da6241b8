// The program on the recording platform: a capture, a click, what the user sees.
#pragma once

#include "app/application.h"
#include "platform/recording/recording.h"

#include <string>
#include <vector>

namespace plotvue::test {

// Runs in an empty directory of its own, which goes with it.
class Session {
public:
    Session();
    ~Session();

    RecordingPlatform platform;
    Application app;

    // What happened since the last look: "load frmProduct", "show frmProduct", "hide …", "unload …",
    // "message Need Data: …", "print frmProduct", "spin", "error …", "end".
    std::vector<std::string> events();

    void copy(TextSpan clipboard) { platform.clipboard = clipboard; }
    void start() { app.start(); }
    void start(TextSpan clipboard);
    void press(Name window, Name button);
    void choose(Name window, Name group, int index);
    void clickRow(Name window, Name grid, int row);
    void close(Name window);

    bool loaded(Name window);
    bool visible(Name window);
    Text caption(Name window);
    ChartContent chart(Name window, Name control = "ChartFX1");
    OptionsState options(Name window, Name group);
    GridState grid(Name window, Name control = "MSFlexGrid1");
    Text text(Name window, Name control); // of a label or a text box; the caption of a button

    bool fileExists(const std::string& name) const;
    std::string file(const std::string& name) const; // bytes; "" when there is none

private:
    View& view(Name window);

    std::vector<std::string> events_;
    std::string directory_, before_;
};

} // namespace plotvue::test
