// A window of the system: loaded when it is first shown, hidden when it is left, and unloaded by those that
// begin anew each time.
#pragma once

#include "platform/platform.h"

namespace plotvue {

class Form {
public:
    explicit Form(Platform& platform) : platform_(platform) {}
    Form(const Form&) = delete;
    virtual ~Form() = default;

    virtual Name name() const = 0;

    // Shows the window; a window that is not loaded is loaded first. A window that hides itself while it
    // loads stays hidden.
    void show();
    void hide();
    void unload();

    bool loaded() const { return window_ != nullptr; }
    bool visible() const { return visible_; }

    // Throws std::out_of_range while the window is not loaded.
    Controls& controls() const;
    Window& window() const;

protected:
    virtual Declaration declare() const = 0;
    virtual Handlers handlers() = 0;
    virtual void Form_Load() = 0;
    virtual void wayOut() = 0; // what the title bar's close does

    // Whether a window that was hidden is loaded again when it is next shown.
    virtual bool loadsAnew() const { return false; }

    // Hides this window and shows `home` in its place.
    void leaveFor(Form& home);

    // Asks for a printer and prints the window as often as copies are wanted. A failure ends it silently, and
    // so does a person who cancels.
    void printWindow();

    Platform& platform() const { return platform_; }

private:
    void load();

    Platform& platform_;
    std::shared_ptr<Controls> controls_; // shared with the platform's window, whose widgets may outlive both
    std::unique_ptr<Window> window_;
    bool visible_ = false;
    bool hiddenWhileLoading_ = false;
};

} // namespace plotvue
