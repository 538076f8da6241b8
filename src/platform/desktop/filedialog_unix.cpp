#include "platform/desktop/filedialog.h"

#include <QSettings>

namespace plotvue {

void keepNoSettings()
{
    // Nobody can create a file there, not even root, so the toolkit reads no settings and writes none.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

FileDialog makeFileDialog(QWidget& window)
{
    return FileDialog(new QFileDialog(&window));
}

void DeleteFileDialog::operator()(QFileDialog* dialog) const
{
    delete dialog;
}

} // namespace plotvue
