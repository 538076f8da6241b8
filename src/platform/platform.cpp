#include "platform/platform.h"

#include <new>

namespace plotvue {

const Text& Platform::clipboardText()
{
    if (!clipboard_)
        clipboard_ = readClipboard();
    return *clipboard_;
}

void Platform::message(TextSpan title, TextSpan text)
{
    tell({.kind = Event::Kind::Message, .title = title, .text = text});
    showMessage(title, text);
}

void Platform::print(NativeWindow& window, Name name)
{
    printWindow(window);
    tell({.kind = Event::Kind::Print, .window = name});
}

void Platform::copy(TextSpan text)
{
    if (text.empty())
        return;
    copyText(text);
    tell({.kind = Event::Kind::Copy, .text = text});
}

void Platform::run(const std::function<void()>& handler)
{
    if (over_)
        return;
    clipboard_.reset();
    try {
        handler();
    } catch (const EndOfProcess&) {
        over_ = true;
        tell({.kind = Event::Kind::End});
        finish();
    } catch (const TooFewLines& read) {
        over_ = true;
        tell({.kind = Event::Kind::Wait});
        waitForMoreLines(read.lines);
    } catch (const Failure& failure) {
        fail(failure.sentence);
    } catch (const std::bad_alloc&) {
        fail(u"There is not enough memory to go on.");
    } catch (const std::exception& mistake) {
        const std::string_view what = mistake.what();
        fail(u"PlotVue made a mistake of its own: " + Text(what.begin(), what.end()) + u".");
    }
}

void Platform::fail(TextSpan sentence)
{
    over_ = true;
    tell({.kind = Event::Kind::Error, .text = sentence});
    reportError(sentence);
}

} // namespace plotvue
