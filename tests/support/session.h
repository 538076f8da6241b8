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
    Chart chart(Name window, Name control = "ChartFX1");
    OptionGroup options(Name window, Name group);
    Grid grid(Name window, Name control = "MSFlexGrid1");
    Text text(Name window, Name control); // of a label or a text box; the caption of a button

    std::vector<std::string> controlNames(Name window); // ascending; an option group once, pictures none

    bool fileExists(const std::string& name) const;
    std::string file(const std::string& name) const; // bytes; "" when there is none

private:
    Controls& controls(Name window);

    std::vector<std::string> events_;
    std::string directory_, before_;
};

} // namespace plotvue::test
