// The program on the recording platform: a capture, a click, what the user sees.
#pragma once

#include "app/application.h"
#include "platform/recording/recording.h"

#include <string>
#include <vector>

namespace plotvue::test {

using Events = std::vector<std::string>;
using Numbers = std::vector<double>;
using Texts = std::vector<Text>;

// What happens when the program starts with a capture that opens the window.
Events opening(Name window);

// Also keeps what it was told to build, and counts how often the clipboard was read.
class WatchedPlatform : public RecordingPlatform {
public:
    std::map<Name, Declaration> built;
    int clipboardReads = 0;

    std::unique_ptr<View> build(const Declaration& declaration, const Handlers& handlers,
                                std::function<void()> close) override;
    Text clipboardText() override;
};

// Runs in an empty directory of its own, which goes with it.
class Session {
public:
    Session();
    ~Session();

    WatchedPlatform platform;
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
    Texts controls(Name window); // their names, sorted
    bool hasControl(Name window, Name control);
    Texts frames(Name window); // of its options, as they are arranged: "Frame2: Months"
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
