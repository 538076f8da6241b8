// A window of the application. It is loaded when it is first shown, and usually stays loaded while it is
// hidden.
#pragma once

#include "platform/platform.h"

namespace plotvue {

// Event handlers by control name. The argument is the index of an option, the row of a grid, or 0 for a
// button. A control that does nothing, such as a grid of figures, has no handler.
using Handlers = std::map<Name, std::function<void(int)>>;

class Window : private ControlsOwner {
public:
    explicit Window(Platform& platform) : platform_(platform) {}
    Window(const Window&) = delete;
    virtual ~Window() = default;

    virtual Name name() const = 0;

    // Shows the window, and loads it first if necessary. A window that hides itself in Form_Load stays
    // hidden.
    void show();
    void hide();
    void unload();

    // Tells the user that the loaded window does not show what was last asked for. An empty text removes the
    // notice, and so does hiding the window.
    void setNotice(TextSpan text);

    bool loaded() const { return native_ != nullptr; }
    bool visible() const { return visible_; }

    // Both throw std::out_of_range if the window is not loaded.
    Controls& controls() const;
    NativeWindow& native() const;

protected:
    virtual Declaration declare() const = 0;
    virtual Handlers handlers() = 0;
    virtual void Form_Load() = 0;
    virtual void wayOut() = 0; // handles the close button of the title bar

    // Runs when a window that is already loaded is shown again.
    virtual void shownAgain() {}

    // Whether the window is loaded again when it is shown after it was hidden.
    virtual bool loadsAnew() const { return false; }

    // Hides this window and shows `home` in its place.
    void leaveFor(Window& home);

    // Asks for a printer and the number of copies, and prints each copy as a job of its own. If the user
    // cancels or printing fails, it returns without a message. Kept: a failed print (docs/kept.md).
    void printWindow();

    Platform& platform() const { return platform_; }

private:
    void load();
    void operated(Name control, int index) override;
    void closed() override;

    Platform& platform_;
    Handlers handlers_;
    std::shared_ptr<Controls> controls_; // shared with native_, whose widgets may outlive this window
    std::unique_ptr<NativeWindow> native_;
    bool visible_ = false;
    bool hiddenSinceLoading_ = false; // whether it was hidden since its last load began
};

} // namespace plotvue
