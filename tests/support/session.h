// Runs the program on the platform in memory: tests copy captures, click and look at what the user sees.
#pragma once

#include "app/application.h"
#include "recording/recordingplatform.h"

#include <string>
#include <vector>

namespace plotvue::test {

using Events = std::vector<std::string>;
using Numbers = std::vector<double>;
using Texts = std::vector<Text>;

// The events when the program starts with a capture that opens the window.
Events opening(Name window);

// Counts how often the clipboard is read.
class CountingPlatform : public RecordingPlatform {
public:
    int clipboardReads = 0;

protected:
    Text readClipboard() override
    {
        ++clipboardReads;
        return RecordingPlatform::readClipboard();
    }
};

// A run of the program in an empty directory of its own, which is removed with the session.
class Session {
public:
    Session();
    ~Session();

    CountingPlatform platform;
    Application app;

    // What happened since the last call: "load frmProduct", "show frmProduct", "hide …", "unload …",
    // "message Need Data: …", "print frmProduct", "spin", "error …", "end".
    Events events();

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
    Text notice(Name window);        // "" when there is none
    Texts controlNames(Name window); // sorted; of options, the name of their group
    bool hasControl(Name window, Name control);
    Texts frames(Name window); // of its options, in their order, each as "Frame2: Months"
    Chart chart(Name window, Name control = "ChartFX1");
    OptionGroup options(Name window, Name group);
    Grid grid(Name window, Name control = "MSFlexGrid1");
    Text text(Name window, Name control); // of a label or a text box; the caption of a button

    bool fileExists(const std::string& name) const;
    std::string file(const std::string& name) const; // bytes; "" when there is none

private:
    Controls& controls(Name window);

    Events events_;
    std::string directory_, before_;
};

} // namespace plotvue::test
