// Plays a script against the windows of one platform.
#pragma once

#include "app/application.h"
#include "replay/seen.h"

#include <iosfwd>
#include <optional>
#include <stdexcept>

namespace plotvue::replay {

struct PrinterAnswer {
    enum class Kind { Cancel, Accept, Fail } kind = Kind::Cancel;
    double copies = 1;
};

// A platform as a script handles it.
class Stage {
public:
    virtual ~Stage() = default;
    virtual Platform& platform() = 0;
    virtual void setClipboard(const Text& text) = 0; // empty: no text
    virtual void setPrinter(PrinterAnswer answer) = 0;
    virtual void settle() {} // lets what was shown and hidden take effect

    virtual SeenWindow look(const Form& form) = 0;
    // As a person does it; what is used is there.
    virtual void press(const Form& form, Name button) = 0;
    virtual void choose(const Form& form, Name group, int index) = 0;
    virtual void clickRow(const Form& form, Name grid, int row) = 0;
    virtual void close(const Form& form) = 0;
};

std::unique_ptr<Stage> recordingStage();
std::unique_ptr<Stage> desktopStage(int& argc, char** argv);

// A line that cannot be played.
struct BadLine : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Player {
public:
    Player(Stage& stage, std::ostream& out);

    // Plays until the script or the process ends. Throws BadLine, its text holding the line's number.
    void play(std::istream& script);

    Application& application() { return app_; }

private:
    void command(const std::vector<std::string>& words);
    void clipboard(const std::vector<std::string>& words);
    void printer(const std::vector<std::string>& words);
    void dump(Name window);
    Form& form(Name window);
    Form& loadedForm(Name window);

    // Throws BadLine when the window shows no such control.
    template <typename Value>
    Value control(Name window, Name name);

    Stage& stage_;
    Application app_;
    std::ostream& out_;
    bool started_ = false;
};

} // namespace plotvue::replay
