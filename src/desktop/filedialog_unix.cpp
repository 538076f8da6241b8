#include "desktop/filedialog.h"

#include <QSettings>

namespace plotvue {

void keepNoSettings()
{
    // Nobody can create a file there, not even root, so the toolkit reads no settings and writes none.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

FileDialog makeFileDialog(QWidget& window)
{
    FileDialog dialog(new QFileDialog(&window));
    dialog->setOption(QFileDialog::DontUseNativeDialog); // the dialogs of the desktops keep folders and files
    return dialog;
}

void DeleteFileDialog::operator()(QFileDialog* dialog) const
{
    delete dialog;
}

} // namespace plotvue
