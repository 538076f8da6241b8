#include "platform/desktop/savepicture.h"

namespace plotvue {

QFileDialog::Options fileDialogOptions()
{
    return QFileDialog::DontUseNativeDialog; // the dialogs of the desktops remember folders and files
}

} // namespace plotvue
