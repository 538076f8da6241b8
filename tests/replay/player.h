// Plays a script in the windows of one platform.
#pragma once

#include "app/application.h"
#include "recording/observed.h"
#include "replay/seen.h"

#include <iosfwd>
#include <optional>
#include <stdexcept>

namespace plotvue::replay {

struct PrinterAnswer {
    enum class Kind { Cancel, Accept, Fail } kind = Kind::Cancel;
    int copies = 1;
};

// A platform that a script controls.
class Stage {
public:
    virtual ~Stage() = default;
    virtual Platform& platform() = 0;
    virtual EventSource& events() = 0;               // of the platform
    virtual void setClipboard(const Text& text) = 0; // empty: no text
    virtual void setPrinter(PrinterAnswer answer) = 0;
    virtual void settle() {} // carries out pending show and hide requests

    virtual SeenWindow look(const Window& window) = 0;
    // User actions. The control must exist.
    virtual void press(const Window& window, Name button) = 0;
    virtual void choose(const Window& window, Name group, int index) = 0;
    virtual void clickRow(const Window& window, Name grid, int row) = 0;
    virtual void close(const Window& window) = 0;
    virtual void copy(const Window& window, Name chartOrGrid) = 0;
};

std::unique_ptr<Stage> recordingStage();
std::unique_ptr<Stage> desktopStage(int& argc, char** argv);

// Thrown for a script line that cannot be played.
struct BadLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Player {
public:
    Player(Stage& stage, std::ostream& out);
    ~Player();

    // Plays until the script or the process ends. Throws BadLine with the line number in its text.
    void play(std::istream& script);

    Application& application() { return app_; }

private:
    void command(const std::vector<std::string>& words);
    void clipboard(const std::vector<std::string>& words);
    void printer(const std::vector<std::string>& words);
    void dump(Name window);
    Window& existingWindow(Name window);
    Window& loadedWindow(Name window);

    // Throw BadLine if the window has no such control.
    Seen control(Name window, Name name);
    template <typename Value>
    Value control(Name window, Name name);

    Stage& stage_;
    Application app_;
    std::ostream& out_;
    bool started_ = false;
};

} // namespace plotvue::replay
