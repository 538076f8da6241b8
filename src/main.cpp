#include "app/application.h"
#include "desktop/desktopplatform.h"
#include "desktop/process.h"
#include "desktop/toolkit.h"

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
