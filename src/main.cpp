#include "app/application.h"
#include "platform/desktop/desktopplatform.h"
#include "platform/desktop/process.h"
#include "platform/desktop/toolkit.h"

int main(int argc, char* argv[])
{
    if (argc > 1)
        plotvue::refuse(u"PlotVue takes no arguments: it charts the screen on the clipboard.");
    plotvue::enterWorkingDirectory();
    const auto desktop = plotvue::makeApplication(argc, argv);
    plotvue::DesktopPlatform platform;
    plotvue::Application application(platform);
    application.start();
    return QApplication::exec();
}
