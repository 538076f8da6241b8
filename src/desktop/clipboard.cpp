#include "desktop/clipboard.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <chrono>

namespace plotvue {

bool clipboardNeedsFocus()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void waitForFocus()
{
    if (QGuiApplication::focusWindow())
        return;
    QEventLoop waiting;
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &waiting, [&waiting](QWindow* window) {
        if (window)
            waiting.quit();
    });
    QTimer::singleShot(std::chrono::seconds(1), &waiting, &QEventLoop::quit);
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
}

Text mendLineEnds(TextSpan text)
{
    Text result;
    result.reserve(text.size() + text.size() / 40);
    char16_t before = u'\n'; // the text starts on a new line
    bool mended = false;
    for (const char16_t character : text) {
        if (character == u'\n' && before == u'\n')
            result += u' ';
        if (character == u'\n' && before != carriageReturn) {
            result += carriageReturn;
            mended = true;
        }
        result += character;
        before = character;
    }
    if (mended && before != u'\n')
        result += u"\r\n";
    return result;
}

} // namespace plotvue
