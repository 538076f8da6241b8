#include "platform/platform.h"

#include <new>

namespace plotvue {

const Text& Platform::clipboardText()
{
    if (!clipboard_)
        clipboard_ = readClipboard();
    return *clipboard_;
}

void Platform::copy(TextSpan text)
{
    if (!text.empty())
        copyText(text);
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
        finish();
    } catch (const TooFewLines& read) {
        over_ = true;
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
    reportError(sentence);
}

} // namespace plotvue
