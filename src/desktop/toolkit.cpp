#include "desktop/toolkit.h"

#include "desktop/chart/qtext.h"
#include "desktop/fontsahead.h"
#include "desktop/process.h"
#include "desktop/runtimefolder.h"

#include <QSessionManager>

#include <cstdlib>
#include <optional>

namespace plotvue {

namespace {

QtMessageHandler usualMessages = nullptr;
bool displayIsMissing = false;
std::optional<RuntimeFolder> runtimeFolder; // while the application is constructed

// Handles the toolkit's messages during the connection to the display. Without a display the toolkit would
// abort; this handler prints a sentence and ends the process instead.
void noteMissingDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        writeError(displayIsMissing ? Text(u"PlotVue: there is no display to show windows on.")
                                    : u"PlotVue: no window can be shown: " +
                                          toText(message.section(u'\n', 0, 0).trimmed()));
        runtimeFolder.reset();
        endProcess(EXIT_FAILURE);
    }
    // If the display is missing, the X11 and Wayland plug-ins say so in a message before the fatal one.
    const bool missing = message.contains(QLatin1String("could not connect to display")) ||
                         message.contains(QLatin1String("Failed to create wl_display"));
    displayIsMissing = displayIsMissing || missing;
    if (!missing && type != QtInfoMsg)
        usualMessages(type, context, message);
}

class SessionApplication : public QApplication {
public:
    using QApplication::QApplication;

protected:
    bool event(QEvent* event) override
    {
        // The desktop session ends. The toolkit would close the windows, but when a chart's window closes,
        // the start-up window opens, so PlotVue would go on.
        if (event->type() == QEvent::Quit)
            endProcess(EXIT_SUCCESS);
        return QApplication::event(event);
    }
};

// The toolkit would have the session start PlotVue again with arguments, and PlotVue has nothing to restore.
void neverRestart(QSessionManager& session)
{
    session.setRestartHint(QSessionManager::RestartNever);
}

} // namespace

std::unique_ptr<QApplication> makeApplication(int& argc, char** argv)
{
    runtimeFolder.emplace(); // first, because it changes the environment, which threads read
    static FontsAhead fonts; // loads fonts while the process waits for the display
    usualMessages = qInstallMessageHandler(noteMissingDisplay);
    auto application = std::make_unique<SessionApplication>(argc, argv);
    qInstallMessageHandler(usualMessages);
    runtimeFolder.reset();
    QObject::connect(application.get(), &QApplication::commitDataRequest, neverRestart);
    QObject::connect(application.get(), &QApplication::saveStateRequest, neverRestart);
    fonts.list();
    return application;
}

} // namespace plotvue
