#include "app/application.h"
#include "platform/desktop/desktopplatform.h"
#include "platform/desktop/process.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    plotvue::enterWorkingDirectory();
    const auto desktop = plotvue::makeApplication(argc, argv);
    plotvue::DesktopPlatform platform;
    plotvue::Application application(platform);
    application.start();
    return QApplication::exec();
}
