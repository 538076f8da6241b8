// Tells a test what happens on a platform: windows, message boxes, prints, copies and the end of the process.
#pragma once

#include "platform/platform.h"

#include <functional>
#include <map>
#include <memory>

namespace plotvue {

struct Event {
    enum class Kind { Load, Show, Hide, Unload, Message, Print, Copy, Wait, Error, End } kind;
    Name window{};    // of Load, Show, Hide, Unload, Print
    TextSpan title{}; // of Message; empty if the box has no title
    TextSpan text{};  // of Message, Copy and Error
};

class ObservedWindow;

class EventSource {
public:
    std::function<void(const Event&)> listener = [](const Event&) {}; // called for each event, in order

    std::map<Name, const ObservedWindow*> windows; // the last one that was built with each name
};

// A window that tells when it is shown, hidden and unloaded, and passes this on to the platform's own window.
class ObservedWindow : public NativeWindow {
public:
    ObservedWindow(Name name, std::unique_ptr<NativeWindow> own, EventSource& events);
    ~ObservedWindow() override;

    void show() override;
    void hide() override;

    const Name name;
    NativeWindow& own() const { return *own_; }

private:
    std::unique_ptr<NativeWindow> own_;
    EventSource& events_;
    bool visible_ = false;
};

// The platform's own window of an observed one.
inline NativeWindow& ownOf(NativeWindow& window)
{
    return static_cast<ObservedWindow&>(window).own();
}

// The platform `Desktop`, which also tells the listener what happens on it.
template <typename Desktop>
class Observed : public Desktop, public EventSource {
public:
    std::unique_ptr<NativeWindow> build(std::shared_ptr<Controls> controls) override
    {
        const Name name = controls->declaration.name;
        return std::make_unique<ObservedWindow>(name, Desktop::build(std::move(controls)), *this);
    }

    int choosePrinter(NativeWindow& window) override { return Desktop::choosePrinter(ownOf(window)); }

    void print(NativeWindow& window) override
    {
        Desktop::print(ownOf(window));
        listener({.kind = Event::Kind::Print, .window = static_cast<ObservedWindow&>(window).name});
    }

    void message(TextSpan title, TextSpan text) override
    {
        listener({.kind = Event::Kind::Message, .title = title, .text = text});
        Desktop::message(title, text);
    }

protected:
    void copyText(TextSpan text) override
    {
        Desktop::copyText(text);
        listener({.kind = Event::Kind::Copy, .text = text});
    }

    void reportError(TextSpan sentence) override
    {
        listener({.kind = Event::Kind::Error, .text = sentence});
        Desktop::reportError(sentence);
    }

    void waitForMoreLines(int lines) override
    {
        listener({.kind = Event::Kind::Wait});
        Desktop::waitForMoreLines(lines);
    }

    void finish() override
    {
        listener({.kind = Event::Kind::End});
        Desktop::finish();
    }
};

} // namespace plotvue
