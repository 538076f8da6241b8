#include "platform/desktop/savepicture.h"

namespace plotvue {

QFileDialog::Options fileDialogOptions()
{
    return {}; // the dialog that users know; Windows itself notes in the registry which folders it has shown
}

} // namespace plotvue
