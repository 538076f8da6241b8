#include "desktop/desktopfixture.h"
#include "desktop/filedialog.h"

#include <QDir>
#include <QTemporaryDir>

namespace plotvue {

using FileDialogs = test::DesktopTest;

TEST_F(FileDialogs, AFileDialogWritesNoSettings)
{
    const QTemporaryDir configuration;
    qputenv("XDG_CONFIG_HOME", configuration.path().toLocal8Bit());
    const Built built = shown();
    FileDialog dialog = makeFileDialog(built.widget());
    dialog->open();
    dialog->close();
    dialog.reset();
    delete new QFileDialog; // the toolkit's own dialogs do this
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(QDir(configuration.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
              QStringList());
}

} // namespace plotvue
